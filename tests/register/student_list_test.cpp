#include "desk.h"

namespace {

const std::vector<Row> students{{{"ONO", 33}, {"ADSOY", "CEM"}, {"SINIF", "9B"}},
                                {{"ONO", 2}, {"ADSOY", "ÇAĞLA"}, {"SINIF", "12A"}},
                                {{"ONO", 10}, {"ADSOY", "ŞULE"}, {"SINIF", "9B"}},
                                {{"ONO", 4}, {"ADSOY", "ISIL"}, {"SINIF", "12A"}},
                                {{"ONO", 5}, {"ADSOY", "İREM"}, {"SINIF", "9B"}}};

}  // namespace

class StudentListTest : public QObject {
    Q_OBJECT

private slots:
    void headings_sort_and_rows_choose() {
        Desk desk(students);
        QCOMPARE(desk.listed(), (QStringList{"2", "4", "5", "10", "33"}));
        for (int click = 0; click < 2; ++click) {  // a second click does not reverse
            desk.click_heading(2);
            QCOMPARE(desk.listed(2), (QStringList{"CEM", "ÇAĞLA", "ISIL", "İREM", "ŞULE"}));
        }
        desk.click_heading(0);
        QCOMPARE(desk.listed(0), (QStringList{"12A", "12A", "9B", "9B", "9B"}));

        GridView& list = *desk.kurvo.TABLO;
        desk.click_heading(2);
        click_cell(list, 1, 2);
        QCOMPARE(desk.kurvo.LONO->text(), "2");
        QCOMPARE(desk.kurvo.LADSOYAD->text(), "ÇAĞLA");
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(desk.kurvo.LADSOYAD->text(), "ÇAĞLA");
        QTest::keyClick(&list, Qt::Key_Space);
        QCOMPARE(desk.kurvo.LADSOYAD->text(), "ISIL");
    }

    // The file of the open term is read again only where somebody has written to it.
    void term_chosen_again() {
        Desk desk(students);
        connect(&desk.terms, &Terms::opened, &desk.list, &StudentList::term_opened);
        desk.terms.donem_listele();
        desk.click_heading(2);
        desk.terms.donem_degistir();
        QCOMPARE(desk.listed(), (QStringList{"2", "4", "5", "10", "33"}));
        const auto untouched = desk.kurvo.TABLO->revision();
        desk.kurvo.TABLO->set_current(4, 1);
        desk.terms.donem_degistir();
        QCOMPARE(desk.kurvo.TABLO->revision(), untouched);
        QCOMPARE(desk.kurvo.TABLO->row(), -1);
        QVERIFY(desk.kurvo.TABLO->selectionModel()->selection().isEmpty());

        {
            auto other = store::OpenDatabase(desk.session.term_file());
            auto far = other.OpenRecordset("Ogrenci");
            far.Seek("=", {33});
            far.Edit();
            far["ADSOY"] = "CEMİLE";
            far.Update();
        }
        desk.terms.donem_degistir();
        QCOMPARE(desk.listed(2), (QStringList{"ÇAĞLA", "ISIL", "İREM", "ŞULE", "CEMİLE"}));
        desk.kurvo.SDONEM->setCurrentText("2025");
        desk.terms.donem_degistir();
        QCOMPARE(desk.listed(), QStringList());
    }

    void hidden_students() {
        Desk desk({{{"ONO", 1}, {"ADSOY", "A"}, {"SAKLA", 0}},
                   {{"ONO", 2}, {"ADSOY", "B"}, {"SAKLA", 1}},
                   {{"ONO", 3}, {"ADSOY", "C"}, {"SAKLA", store::Value()}}});
        QCOMPARE(desk.listed(), (QStringList{"1", "2", "3"}));
        desk.session.hideArchived = "1";
        desk.list.listeyi_yenile();
        QCOMPARE(desk.listed(), (QStringList{"1", "3"}));
    }

    void surname_rule_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("surname_only");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("anywhere") << "NUR" << false << QStringList{"1", "3", "4", "5", "6"};
        QTest::newRow("surname") << "NUR" << true << QStringList{"3", "4", "6"};
        QTest::newRow("not the given name") << "YILD" << true << QStringList{"1"};
        QTest::newRow("capitals of Turkish") << "yıldı" << false << QStringList{"1", "2"};
    }

    void surname_rule() {
        QFETCH(QString, text);
        QFETCH(bool, surname_only);
        Desk desk({{{"ONO", 1}, {"ADSOY", "AYŞE NUR YILDIRIM"}},
                   {{"ONO", 2}, {"ADSOY", "YILDIZ AY"}},
                   {{"ONO", 3}, {"ADSOY", "NUR"}},
                   {{"ONO", 4}, {"ADSOY", "CAN NURLU "}},
                   {{"ONO", 5}, {"ADSOY", "EDA NUR  "}},
                   {{"ONO", 6}, {"ADSOY", " NUR"}}});
        desk.session.upperCaseNames = "1";
        desk.kurvo.FSBUL_CH->setChecked(surname_only);
        QTest::mouseClick(desk.kurvo.CommandSBUL, Qt::LeftButton);
        QVERIFY(desk.kurvo.FSBUL_soyad->hasFocus());
        Desk::type(desk.kurvo.FSBUL_soyad, text);
        QTest::keyClick(desk.kurvo.FSBUL_soyad, Qt::Key_Return);
        const QStringList hits = Desk::column(*desk.kurvo.TABLO_SBUL, 1);
        QTEST(hits, "expected");
        click_cell(*desk.kurvo.TABLO_SBUL, 0, 2);
        QCOMPARE(desk.kurvo.LONO->text(), hits[0]);
        QCOMPARE(QString::number(desk.session.shownStudent), hits[0]);
    }
};

static const Registered<StudentListTest> registered;
#include "student_list_test.moc"
