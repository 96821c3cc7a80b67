#include "session/start_up.h"

#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "platform/rich_text.h"
#include "register/program.h"
#include "session/hand_over.h"
#include "support/run_all.h"
#include "support/school.h"

#include <tuple>

namespace {

const QString tak = QStringLiteral("c/qlm/tak.txt");

// The panel buttons that are shown, each with its distance below the first place in button heights.
QString placed_buttons(const Kurvo& kurvo) {
    QStringList placed;
    for (const QPushButton* button : {kurvo.CommandYENI, kurvo.CommandTAHSILAT, kurvo.CommandDEVAMSIZLIK,
                                      kurvo.CommandETUD, kurvo.CommandNOT, kurvo.CommandTOPLU})
        if (button->isVisible())
            placed += button->objectName().mid(7) + QString::number((button->y() - kurvo.CommandYENI->y()) / 20);
    return placed.join(' ');
}

// The program on the files of the school, as the launcher starts it.
struct Running {
    explicit Running(School& school, const School::HandOver& items = {}) {
        school.hand_over(items);
        school.running_program();
        started = program.start();
    }
    Program program;
    bool started = false;
    Kurvo& kurvo = program.form();
    SessionContext& session = program.session();
};

}  // namespace

class StartUpTest : public QObject {
    Q_OBJECT

private slots:
    void form_comes_up_filled_and_signs_off() {
        School school;
        school.add_term("2025");
        for (const int number : {1250, 7}) school.student(number).name("AYŞE");
        const QString scratch = "c:\\qlm\\siletud.mdb";
        for (const char* left_over : {"c/qlm/siletud.mdb", "c/qlm/siletud.mdb-journal"})
            school.drives.put(left_over, "x");
        school.running_program("Kasa");
        Running run(school, {.version = "21.0", .remote_key = "ANK"});
        QVERIFY(run.started && run.kurvo.isVisible());
        QCOMPARE(run.kurvo.windowTitle(), QStringLiteral("  Öğrenci İşlemleri     21.0    (ANK)"));
        QCOMPARE(run.kurvo.TABLO->rows(), 2);
        QCOMPARE(run.kurvo.TABLO->text(0, 1), QStringLiteral("7"));
        QCOMPARE(run.kurvo.SDONEM->count(), 2);
        QCOMPARE(run.kurvo.ComboKASATIP->currentText(), QStringLiteral(" "));
        QVERIFY(run.kurvo.CheckKad->isChecked() && run.kurvo.TABLO->isVisible() && run.session.termDbOpen);
        QVERIFY(!QFile::exists(school.drives.path(tak)));
        for (const QString& gone : {scratch, scratch + "-journal", hand_over_file})
            QVERIFY2(!paths::exists(gone), qPrintable(gone));
        for (const QString& made : {school.data_file("Prmt.txt"), school.data_file("Fatura.txt")})
            QVERIFY2(paths::exists(made), qPrintable(made));

        QCOMPARE(school.rows("prg", {"KOD"}).size(), 2);
        run.kurvo.close();
        QVERIFY(!run.session.termDbOpen && !run.session.termDb.is_open());
        QCOMPARE(school.rows("prg", {"KOD"}), QStringList("Kasa"));  // the other programs of the suite go on
    }

    void rights_place_the_buttons() {
        const std::tuple<QString, QString, int> users[]{{"111111", "YENI0 TAHSILAT1 DEVAMSIZLIK2 ETUD3 NOT4 TOPLU5", 1},
                                                        {"000000", "", 0},
                                                        {"010101", "TAHSILAT0 ETUD1 TOPLU2", 1},
                                                        {"x21", "DEVAMSIZLIK0", 0}};
        for (const auto& [rights, buttons, collections] : users) {
            School school;
            Running run(school, {.rights = rights});
            QCOMPARE(placed_buttons(run.kurvo), buttons);
            QCOMPARE(run.session.collectionsAllowed, collections);
            QVERIFY(run.kurvo.CommandSBUL->isVisible());
        }
    }

    void teachers_are_for_study_sessions_alone() {
        School school;
        school.teacher(12, "ŞULE").teacher(5, "ZEKİ").teacher(9, "ALİ").teacher(10, "ALİ");
        school.lesson("02", "Fizik").lesson("01", "Türkçe");
        const ReferenceLists all = load_reference_lists(school.reference_file(), true);
        QCOMPARE(all.teachers, (QStringList{"ALİ  (10)", "ALİ  (9)", "ZEKİ  (5)", "ŞULE  (12)"}));
        QCOMPARE(all.lessons[0].code + all.lessons[0].name, QStringLiteral("01Türkçe"));

        Running run(school, {.rights = "111011"});
        QVERIFY(run.session.reference.teachers.isEmpty());
        QCOMPARE(run.session.reference.lessons.size(), std::size_t{2});
    }

    void other_version_stops_and_signs_off() {
        School school;
        school.data_version("20.9");
        prompt::Script script;
        script.expect("Sürüm uyuşmazlığı! Önce  Up21.1  programını çalıştırınız.");
        Running run(school);
        QVERIFY(!run.started);
        QCOMPARE(script.failures(), QStringList());
        QCOMPARE(script.seen().first().section('|', 0, 0), QStringLiteral("Dikkat"));
        QVERIFY(!run.kurvo.isVisible() && !run.session.termDbOpen);
        QCOMPARE(school.rows("prg", {"KOD"}), QStringList());
        QCOMPARE(rich_text::plain(school.row("SBtab", {"RMA"}).value("SB1")), QStringLiteral("20.9"));
        QVERIFY(!paths::exists(hand_over_file));
        QVERIFY2(!paths::exists(school.data_file("Prmt.txt")), "nothing is made for a start that stopped");
    }

    void both_writers_of_the_flags() {
        School school;
        school.student(7);
        school.drives.put(tak, "\"0\"\r\n");
        Running run(school);
        Kurvo& kurvo = run.kurvo;
        QVERIFY(!kurvo.TABLO->isVisible() && !kurvo.bslk[0]->isEnabled() && kurvo.CheckKad->isChecked());
        QCOMPARE(school.drives.bytes(tak), QByteArray("\"0\"\r\n"));

        kurvo.CheckKad->click();
        QCOMPARE(school.drives.bytes(tak), QByteArray("\"00\"\r\n"));
        QTest::mouseClick(kurvo.TabloAcKapa, Qt::LeftButton);
        QCOMPARE(school.drives.bytes(tak), QByteArray("\"10\"\r\n"));
        QVERIFY(kurvo.TABLO->isVisible() && kurvo.bslk[0]->isEnabled());
        kurvo.CheckKad->click();
        QTest::mouseClick(kurvo.TabloAcKapa, Qt::LeftButton);
        QCOMPARE(school.drives.bytes(tak), QByteArray("\"01\"\r\n"));
    }
};

static const Registered<StartUpTest> registered;
#include "start_up_test.moc"
