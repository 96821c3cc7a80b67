#include "register/name_search.h"

#include "desk.h"
#include "register_tests.h"

#include <QTest>

namespace {

const std::vector<Row> students{{{"ONO", 1}, {"ADSOY", "AYŞE NUR YILDIRIM"}},
                                {{"ONO", 2}, {"ADSOY", "YILDIZ AY"}},
                                {{"ONO", 3}, {"ADSOY", "NUR"}},
                                {{"ONO", 4}, {"ADSOY", "CAN NURLU "}},
                                {{"ONO", 5}, {"ADSOY", "EDA NUR  "}},
                                {{"ONO", 6}, {"ADSOY", " NUR"}}};

void search_for(Desk& desk, const QString& text) {
    QTest::mouseClick(desk.kurvo.CommandSBUL, Qt::LeftButton);
    QVERIFY(desk.kurvo.FSBUL_soyad->hasFocus());
    Desk::type(desk.kurvo.FSBUL_soyad, text);
    QTest::keyClick(desk.kurvo.FSBUL_soyad, Qt::Key_Return);
}

}  // namespace

void NameSearchTest::surname_rule_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("surname_only");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("anywhere") << "NUR" << false << QStringList{"1", "3", "4", "5", "6"};
    QTest::newRow("surname") << "NUR" << true << QStringList{"3", "4", "6"};
    QTest::newRow("not the given name") << "YILD" << true << QStringList{"1"};
    QTest::newRow("exact case") << "nur" << false << QStringList();
    QTest::newRow("blank in the last place") << " " << true << QStringList{"4", "5"};
    QTest::newRow("nothing is in every name") << "" << true << QStringList{"1", "2", "3", "4", "5", "6"};
}

void NameSearchTest::surname_rule() {
    QFETCH(QString, text);
    QFETCH(bool, surname_only);
    QFETCH(QStringList, expected);
    Desk desk(students);
    desk.kurvo.FSBUL_CH->setChecked(surname_only);
    search_for(desk, text);
    QCOMPARE(Desk::column(*desk.kurvo.TABLO_SBUL, 1), expected);
    QCOMPARE(desk.kurvo.FSBUL_msg->isHidden(), expected.isEmpty());
}

void NameSearchTest::capitals_are_typed_data() {
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("expected");
    QTest::newRow("capitals") << "1"
                              << "İIÇĞÜŞÖXµ 5";
    QTest::newRow("as typed") << "0"
                              << "iıçğüşöxµ 5";
    QTest::newRow("no setting") << ""
                                << "iıçğüşöxµ 5";
}

void NameSearchTest::capitals_are_typed() {
    QFETCH(QString, setting);
    Desk desk(students);
    desk.session.upperCaseNames = setting;
    search_for(desk, "iıçğüşöxµ 55");
    QTest::keyClick(desk.kurvo.FSBUL_soyad, Qt::Key_Backspace);
    QTEST(desk.kurvo.FSBUL_soyad->text(), "expected");
}

void NameSearchTest::hit_goes_to_the_card() {
    Desk desk(students);
    QTest::mouseClick(desk.kurvo.TabloAcKapa, Qt::LeftButton);
    search_for(desk, "AY");
    Desk::click_cell(*desk.kurvo.TABLO_SBUL, 1, 2);
    QCOMPARE(desk.kurvo.LONO->text(), "2");
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "YILDIZ AY");
    QCOMPARE(desk.kurvo.TABLO->row(), 1);
    QVERIFY(desk.kurvo.Frame_SBUL->isVisible());
}

void NameSearchTest::hits_grow_stale_by_a_sort() {
    Desk desk(students);
    search_for(desk, "YILDIZ");
    desk.click_heading(2);  // " NUR" goes to the top, "AYŞE NUR YILDIRIM" to the second place
    Desk::click_cell(*desk.kurvo.TABLO_SBUL, 0, 0);
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "AYŞE NUR YILDIRIM");
}

void NameSearchTest::empty_list_opens_no_search() {
    Desk desk({});
    QTest::mouseClick(desk.kurvo.CommandSBUL, Qt::LeftButton);
    QVERIFY(desk.kurvo.Frame_SBUL->isHidden());
}
