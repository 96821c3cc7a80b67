#include "platform/cell_editor.h"
#include "platform/date_picker.h"
#include "platform/prompt.h"
#include "register/program.h"
#include "support/grids.h"
#include "support/run_all.h"
#include "support/school.h"

#include <QScrollBar>

namespace {

const QString today = QStringLiteral("20261124");

// A clerk who keeps the roll of that day at a school of three lessons.
struct Roll : School {
    Program program;
    Kurvo& kurvo = program.form();
    GridView& grid = *kurvo.FDevam_Tablo2;
    CellEditor& box = *kurvo.FDevam_Cel_In;

    Roll() {
        lesson("FZ", "Fizik").lesson("KM", "Kimya").lesson("MT", "Matematik");
        hand_over({});
        if (!program.start() || !QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
        kurvo.FDevam_TARIH->set_key(today);
    }
    // By number and Enter; the focus stays in the number box.
    void choose(const QString& number) {
        QTest::keyClick(&kurvo, Qt::Key_F2);
        keys(number + u'!');
    }
    void open_panel(const QString& number) {
        choose(number);
        QTest::mouseClick(kurvo.CommandDEVAMSIZLIK, Qt::LeftButton);
    }
    // Where the focus is: L R U D are the arrows, X Delete, B Backspace, E Esc, ! Enter.
    static void keys(const QString& typed) {
        const QString names = "LRUDXBE!";
        constexpr Qt::Key keys[]{Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,     Qt::Key_Down,
                                 Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Return};
        for (const QChar key : typed)
            QTest::keyClick(QApplication::focusWidget(),
                            names.contains(key) ? keys[names.indexOf(key)] : Qt::Key(key.toUpper().unicode()));
    }
    // The panel's rows, then its excuse.
    QString day() const { return (grid_rows(grid, 1, 1) + QStringList(kurvo.MAZERET->text())).join(' '); }
    QStringList stored() const { return rows("Devam", {"TARIH", "DKOD", "IZINLI", "IZINSIZ", "RAPORLU"}); }
};

}  // namespace

class AttendanceTest : public QObject {
    Q_OBJECT

private slots:
    void day_is_entered_by_keys() {
        Roll roll;
        roll.student(1250)
            .absence(today, "MT", 3, 0, 1)
            .absence(today, "ZZ", 0, 2, 0)
            .absence("20261123", "FZ", 9, 0, 0);
        roll.open_panel("1250");
        QCOMPARE(roll.day(), "Fizik||| Kimya||| Matematik|3||1 ||2| ");
        click_cell(roll.grid, 3, 2);
        roll.keys("1a-B");  // before the 3
        roll.keys("LXUR2RR4UU5E7");
        QVERIFY(roll.box.isHidden() && roll.grid.hasFocus());
        QCOMPARE(roll.day(), "Fizik|||5 Kimya||2|4 Matematik|3||1 ||2| ");
        // On a lesson's name its first counter opens; a key of the grid begins the text anew.
        click_cell(roll.grid, 4, 1);
        roll.grid.setFocus();
        roll.keys("x60!");
        const QStringList saved{"20261123|FZ|9|0|0", "20261124|FZ|0|0|5", "20261124|KM|0|2|4", "20261124|MT|3|0|1",
                                "20261124|ZZ|60|2|0"};
        QCOMPARE(roll.stored(), saved);
        QCOMPARE(roll.kurvo.FToplu_TOP1->text(), "72");
        roll.keys("23!");  // the focus went to the date
        QCOMPARE(roll.day(), "Fizik|9|| Kimya||| Matematik||| ");
        QCOMPARE(roll.stored(), saved);
    }

    // A class is entered student by student: number, Enter, hours, Enter.
    void number_enter_enter() {
        Roll roll;
        for (const int number : {7, 1250}) roll.student(number);
        roll.open_panel("7");
        for (const QString& number : {QString("7"), QString("1250")}) {
            roll.choose(number);
            QCOMPARE(roll.day(), "Fizik||| Kimya||| Matematik||| ");
            click_cell(roll.grid, 1, 2);
            roll.keys("2!");
        }
        roll.choose("7");
        roll.grid.set_text(2, 2, "3");
        roll.keys("!");
        QCOMPARE(roll.rows("Devam", {"ONO", "DKOD", "IZINLI"}), QStringList({"7|FZ|2", "7|KM|3", "1250|FZ|2"}));
    }

    void hours_and_excuse_are_saved_data() {
        QTest::addColumn<bool>("study");
        QTest::addColumn<QString>("cells");  // hours and excuse as stored before, as typed, as stored after
        QTest::newRow("new with its blanks") << false << "||2|  grip |2|  grip ";
        QTest::newRow("changed without") << true << "3|grip|2| rapor |2|rapor";
        QTest::newRow("no hours, dropped") << false << "||0|grip||";
        QTest::newRow("no hours, survives") << true << "3|grip|0|rapor||grip";
        const QString long_one(40000, 'x');
        QTest::newRow("of any length") << true << "||1|" + long_one + "|1|" + long_one;
        QTest::newRow("emptied") << false << "3|grip|3| |3|";
    }

    void hours_and_excuse_are_saved() {
        QFETCH(bool, study);
        QFETCH(QString, cells);
        const QStringList cell = cells.split('|');
        Roll roll;
        auto student = roll.student(1250);
        if (const int hours = cell[0].toInt(); hours > 0) {
            study ? student.study_absence(today, "KM", hours, 0, 0) : student.absence(today, "KM", hours, 0, 0);
            study ? student.study_excuse(today, cell[1]) : student.excuse(today, cell[1]);
        }
        roll.open_panel("1250");
        roll.kurvo.Zetud->setChecked(study);
        QCOMPARE(roll.grid.text(2, 2) + u'|' + roll.kurvo.MAZERET->text(), cell[0] + u'|' + cell[1]);
        roll.grid.set_text(2, 2, cell[2]);
        roll.kurvo.MAZERET->setText(cell[3]);
        roll.keys("!");  // in the date: what is stored is shown, though the focus does not move
        QCOMPARE(roll.row(study ? "EtudDevam" : "Devam", {1250, today, "KM"})["IZINLI"], cell[4]);
        QCOMPARE(roll.row(study ? "Emazeret" : "Dmazeret", {1250, today})["ACK"], cell[5]);
        QCOMPARE(roll.kurvo.MAZERET->text(), cell[5]);
    }

    void cell_box_lets_go() {
        Roll roll;
        roll.student(1250);
        roll.student(7).absence(today, "FZ", 1, 0, 0);
        roll.open_panel("7");
        click_cell(roll.grid, 2, 3);
        roll.choose("1250");
        roll.box.setText("8");
        QCOMPARE(roll.day(), "Fizik||| Kimya||| Matematik||| ");
        // A press on the heading opens the current cell. A scroll keeps what is typed, and the day is not loaded.
        QTest::mouseClick(roll.grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(200, 5));
        roll.keys("4");
        roll.grid.setMaximumHeight(60);
        QTRY_VERIFY(roll.grid.verticalScrollBar()->maximum() > 0);
        roll.grid.verticalScrollBar()->setValue(1);
        QVERIFY(roll.box.isHidden() && roll.grid.text(2, 3) == "4");
        // Another number in the box: nothing is written for either student.
        roll.kurvo.LONO->setText("7");
        QTest::mouseClick(roll.kurvo.FDevam_CommandKAYDET, Qt::LeftButton);
        QCOMPARE(roll.stored(), QStringList("20261124|FZ|1|0|0"));
    }

    void overview() {
        Roll roll;
        auto student = roll.student(1250);
        student.absence(today, "ZZ", 0, 0, 4).absence(today, "MT", 1, 0, 0).absence("20261123", "MT", 2, 1, 0);
        student.excuse(today, "grip").study_excuse("20261125", "nöbet");
        student.study_absence("20261125", "MT", 5, 0, 0).study_absence("20261125", "FZ", 0, 1, 0);
        roll.student(1251).absence(today, "MT", 50, 0, 0).excuse("20261123", "başkası");
        roll.open_panel("1250");
        Kurvo& kurvo = roll.kurvo;
        const GridView& days = *kurvo.FToplu_DEVAMS;
        const auto shown = [&] {
            return grid_rows(days, 1) << kurvo.FToplu_TOP1->text() + kurvo.FToplu_TOP2->text() +
                                             kurvo.FToplu_TOP3->text();
        };
        QCOMPARE(grid_rows(*kurvo.FToplu_DERSLER, 1, 1), QStringList({"Fizik|||", "Kimya|||", "Matematik|3|1|"}));
        QCOMPARE(shown(), QStringList({"23.11.2026|2|1|0|Matematik|", "24.11.2026|1|0|0|Matematik|grip",
                                       "24.11.2026|0|0|4||grip", "314"}));
        QCOMPARE(grid_rows(*kurvo.FToplu_DERSLERe, 1, 1), QStringList({"Fizik||1|", "Kimya|||", "Matematik|5||"}));
        QCOMPARE(grid_rows(*kurvo.FToplu_DEVAMSe, 1).last(), "25.11.2026|5|0|0|Matematik|nöbet");
        prompt::Script prompts;
        prompts.expect("grip");
        kurvo.panel_goster(Kurvo::Panel::Toplu);
        for (const int row : {1, 2}) click_cell(days, row, 0);
        QCOMPARE(prompts.seen(), QStringList("24.11.2026 Tarihindeki Mazereti|grip"));
        // The lesson's hours of the study sessions: the table in memory holds these.
        click_cell(*kurvo.FToplu_DERSLER, 3, 1);
        QCOMPARE(shown(), QStringList({"25.11.2026|5|0|0||", "500"}));
        QCOMPARE(days.text(0, 0) + days.text(0, 4), "  Tarih");
        emit kurvo.SDONEM->activated(0);
        click_cell(*kurvo.FToplu_DERSLER, 3, 3);
        QCOMPARE(shown(), QStringList("000"));
    }
};

static const Registered<AttendanceTest> registered;
#include "attendance_test.moc"
