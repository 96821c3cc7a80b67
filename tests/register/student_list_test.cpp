#include "register/student_list.h"

#include "desk.h"
#include "platform/screen_units.h"
#include "register_tests.h"

#include <QTest>

namespace {

const std::vector<Row> students{{{"ONO", 33}, {"ADSOY", "CEM"}, {"SINIF", "9B"}},
                                {{"ONO", 2}, {"ADSOY", "ÇAĞLA"}, {"SINIF", "12A"}},
                                {{"ONO", 10}, {"ADSOY", "ŞULE"}, {"SINIF", "9B"}},
                                {{"ONO", 4}, {"ADSOY", "ISIL"}, {"SINIF", "12A"}},
                                {{"ONO", 5}, {"ADSOY", "İREM"}, {"SINIF", "9B"}}};
const QStringList by_number{"2", "4", "5", "10", "33"};
const QStringList by_name{"33", "2", "4", "5", "10"};

QStringList numbers_of(const Desk& desk) {
    return Desk::column(*desk.kurvo.TABLO, 1);
}

// Which headings have the active colour, and that the others have the inactive one.
QString active_headings(const Desk& desk) {
    QString marks;
    for (const ClickableLabel* heading : desk.kurvo.bslk) {
        const QColor color = Desk::text_color(heading);
        marks += color == screen_units::color(0xC0FFFF) ? '1' : color == screen_units::color(0xFFFFC0) ? '0' : '?';
    }
    return marks;
}

const QString flags_file = QStringLiteral("c/qlm/tak.txt");

}  // namespace

void StudentListTest::headings_sort_by_value_and_alphabet() {
    Desk desk(students);
    QCOMPARE(numbers_of(desk), by_number);
    QCOMPARE(active_headings(desk), "010");
    for (int click = 0; click < 2; ++click) {  // a second click does not reverse
        desk.click_heading(2);
        QCOMPARE(numbers_of(desk), by_name);
        QCOMPARE(Desk::column(*desk.kurvo.TABLO, 2), (QStringList{"CEM", "ÇAĞLA", "ISIL", "İREM", "ŞULE"}));
        QCOMPARE(active_headings(desk), "001");
    }
    desk.click_heading(1);
    QCOMPARE(numbers_of(desk), by_number);
    desk.click_heading(0);
    QCOMPARE(Desk::column(*desk.kurvo.TABLO, 0), (QStringList{"12A", "12A", "9B", "9B", "9B"}));
    QCOMPARE(active_headings(desk), "100");
    QCOMPARE(desk.session.listSortColumn, 0);
}

void StudentListTest::refill_keeps_the_chosen_order() {
    Desk desk(students);
    desk.click_heading(2);
    desk.session.studentTable.Seek("=", {5});
    desk.session.studentTable.Delete();
    desk.list.listeyi_yenile();
    QCOMPARE(numbers_of(desk), (QStringList{"33", "2", "4", "10"}));
    QCOMPARE(active_headings(desk), "001");
    QCOMPARE(desk.session.listRowCount, 4);
    desk.session.listSortColumn = 1;
    desk.list.term_opened();
    QCOMPARE(numbers_of(desk), (QStringList{"2", "4", "10", "33"}));
    QCOMPARE(active_headings(desk), "010");
}

void StudentListTest::click_and_keys_choose_a_student() {
    Desk desk(students);
    GridView& list = *desk.kurvo.TABLO;
    desk.click_heading(2);
    Desk::click_cell(list, 1, 2);
    QCOMPARE(desk.kurvo.LONO->text(), "2");
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "ÇAĞLA");
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "ÇAĞLA");
    QTest::keyClick(&list, Qt::Key_Space);
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "ISIL");
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "İREM");
    QCOMPARE(desk.kurvo.LONO->text(), "5");
}

void StudentListTest::empty_list_does_nothing() {
    Desk desk({});
    desk.click_heading(2);
    desk.click_heading(0);
    QTest::mouseClick(desk.kurvo.TABLO->viewport(), Qt::LeftButton);
    QTest::keyClick(desk.kurvo.TABLO, Qt::Key_Space);
    QCOMPARE(desk.kurvo.LONO->text(), "");
    QVERIFY(!desk.session.studentSelected);
}

void StudentListTest::hidden_students_data() {
    QTest::addColumn<QString>("hide_archived");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("left out") << "1" << QStringList{"1", "3"};
    QTest::newRow("listed") << "0" << QStringList{"1", "2", "3"};
    QTest::newRow("listed without a flag") << "" << QStringList{"1", "2", "3"};
}

void StudentListTest::hidden_students() {
    QFETCH(QString, hide_archived);
    const Desk desk({{{"ONO", 1}, {"ADSOY", "A"}, {"SAKLA", 0}},
                     {{"ONO", 2}, {"ADSOY", "B"}, {"SAKLA", 1}},
                     {{"ONO", 3}, {"ADSOY", "C"}, {"SAKLA", store::Value()}}},
                    hide_archived);
    QTEST(numbers_of(desk), "expected");
}

void StudentListTest::closed_list_is_remembered() {
    Desk desk(students);
    desk.session.uiFlags = QStringLiteral("10");
    QTest::mouseClick(desk.kurvo.TabloAcKapa, Qt::LeftButton);
    QVERIFY(desk.kurvo.TABLO->isHidden());
    QCOMPARE(desk.kurvo.TabloAcKapa->text(), " +");
    QCOMPARE(desk.drives.bytes(flags_file), "\"00\"\r\n");
    desk.click_heading(2);
    QCOMPARE(numbers_of(desk), by_number);
    desk.type_number("10");
    QCOMPARE(desk.kurvo.LADSOYAD->text(), "ŞULE");

    QTest::mouseClick(desk.kurvo.TabloAcKapa, Qt::LeftButton);
    QVERIFY(desk.kurvo.TABLO->isVisible());
    QCOMPARE(desk.kurvo.TabloAcKapa->text(), " -");
    QCOMPARE(desk.drives.bytes(flags_file), "\"10\"\r\n");
    desk.click_heading(2);
    QCOMPARE(numbers_of(desk), by_name);
}

void StudentListTest::state_at_the_start_data() {
    QTest::addColumn<QString>("flags");
    QTest::addColumn<bool>("open");
    QTest::newRow("open") << "11" << true;
    QTest::newRow("closed") << "01" << false;
    QTest::newRow("anything else") << "x1" << true;
}

void StudentListTest::state_at_the_start() {
    QFETCH(QString, flags);
    Desk desk(students);
    desk.session.uiFlags = flags;
    desk.list.apply_list_state();
    QTEST(desk.kurvo.TABLO->isVisible(), "open");
    QTEST(desk.kurvo.bslk[2]->isEnabled(), "open");
    QVERIFY(!QFile::exists(desk.drives.path(flags_file)));
}

void StudentListTest::lock_outlives_the_closed_list() {
    Desk desk(students);
    desk.kurvo.kilitle(desk.kurvo.student_choice());
    for (int click = 0; click < 2; ++click) QTest::mouseClick(desk.kurvo.TabloAcKapa, Qt::LeftButton);
    QVERIFY(!desk.kurvo.bslk[2]->isEnabled());
    desk.kurvo.kilidi_ac(desk.kurvo.student_choice());
    QVERIFY(desk.kurvo.bslk[2]->isEnabled());
}
