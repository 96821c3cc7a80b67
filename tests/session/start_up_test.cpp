#include "session/start_up.h"

#include "office.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "platform/rich_text.h"
#include "register/program.h"
#include "session/hand_over.h"
#include "session_tests.h"

#include <QTest>

namespace {

const QString programs_file = QStringLiteral("c:\\qlm\\Psys.mdb");
const QString tak = QStringLiteral("c:\\qlm\\tak.txt");

// The panel buttons that are shown, each with its distance below the first place in told button heights.
QStringList placed_buttons(const Kurvo& kurvo) {
    constexpr int button_height = 20;  // 240 twips
    QStringList placed;
    for (const QPushButton* button : {kurvo.CommandYENI, kurvo.CommandTAHSILAT, kurvo.CommandDEVAMSIZLIK,
                                      kurvo.CommandETUD, kurvo.CommandNOT, kurvo.CommandTOPLU})
        if (button->isVisible())
            placed.append(button->objectName() + " " +
                          QString::number((button->y() - kurvo.CommandYENI->y()) / button_height));
    return placed;
}

}  // namespace

void StartUpTest::form_comes_up_filled() {
    const Office office({"2026", "2025"});
    for (const int number : {1250, 7}) Office::student("2026", number, "AYŞE");
    launch::HandOver values = office.hand_over();
    values.version = "21.0";
    values.remote_key = "ANK";
    launch::prepare(values);

    Program program;
    QVERIFY(program.start());
    const Kurvo& kurvo = program.form();
    QVERIFY(kurvo.isVisible());
    QCOMPARE(kurvo.windowTitle(), QStringLiteral("  Öğrenci İşlemleri     21.0    (ANK)"));
    QCOMPARE(kurvo.TABLO->rows(), 2);
    QCOMPARE(kurvo.TABLO->text(0, 1), QStringLiteral("7"));
    QCOMPARE(kurvo.SDONEM->count(), 2);
    QCOMPARE(kurvo.ComboKASATIP->currentText(), QStringLiteral(" "));
    QVERIFY(kurvo.CheckKad->isChecked());
    QVERIFY(kurvo.TABLO->isVisible());
    QVERIFY(program.session().termDbOpen);
    QCOMPARE(program.session().collectionsAllowed, 1);
}

void StartUpTest::leftovers_and_new_files() {
    const Office office;
    const QString scratch = QStringLiteral("c:\\qlm\\siletud.mdb");
    Office::write(scratch, "x");
    Office::write(scratch + "-journal", "x");
    launch::prepare(office.hand_over());
    Program program;
    QVERIFY(program.start());
    for (const QString& gone : {scratch, scratch + "-journal", hand_over_file, tak})
        QVERIFY2(!paths::exists(gone), qPrintable(gone));
    for (const QString& made : {Office::data("Prmt.txt"), Office::data("Fatura.txt")})
        QVERIFY2(paths::exists(made), qPrintable(made));
}

void StartUpTest::rights_place_the_buttons_data() {
    QTest::addColumn<QString>("rights");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("collections");
    QTest::newRow("all") << "111111" << QStringList{"CommandYENI 0", "CommandTAHSILAT 1", "CommandDEVAMSIZLIK 2",
                                                    "CommandETUD 3", "CommandNOT 4",      "CommandTOPLU 5"}
                         << 1;
    QTest::newRow("none") << "000000" << QStringList{} << 0;
    QTest::newRow("every other") << "010101" << QStringList{"CommandTAHSILAT 0", "CommandETUD 1", "CommandTOPLU 2"}
                                 << 1;
    QTest::newRow("first and last") << "100001" << QStringList{"CommandYENI 0", "CommandTOPLU 1"} << 0;
    QTest::newRow("short, other letters") << "x21" << QStringList{"CommandDEVAMSIZLIK 0"} << 0;
}

void StartUpTest::rights_place_the_buttons() {
    QFETCH(QString, rights);
    const Office office;
    launch::HandOver values = office.hand_over();
    values.rights = rights;
    launch::prepare(values);
    Program program;
    QVERIFY(program.start());
    QTEST(placed_buttons(program.form()), "expected");
    QTEST(program.session().collectionsAllowed, "collections");
    QVERIFY(program.form().CommandSBUL->isVisible());
}

void StartUpTest::teachers_are_for_study_sessions_alone() {
    const Office office;
    const QString reference = Office::data("Bilgi.mdb");
    for (const auto& [number, name] : {std::pair(12, "ŞULE"), {5, "ZEKİ"}, {9, "ALİ"}, {10, "ALİ"}})
        Office::add(reference, "Ogretmen", {{"SICIL", number}, {"ADSOY", name}});
    for (const auto& [code, name] : {std::pair("02", "Fizik"), {"01", "Türkçe"}})
        Office::add(reference, "Ders", {{"KOD", code}, {"TANIM", name}});

    const ReferenceLists all = load_reference_lists(reference, true);
    QCOMPARE(all.teachers, (QStringList{"ALİ  (10)", "ALİ  (9)", "ZEKİ  (5)", "ŞULE  (12)"}));
    QCOMPARE(all.lessons.size(), std::size_t{2});
    QCOMPARE(all.lessons[0].code + all.lessons[0].name, QStringLiteral("01Türkçe"));

    launch::HandOver values = office.hand_over();
    values.rights = "111011";
    launch::prepare(values);
    Program program;
    QVERIFY(program.start());
    QVERIFY(program.session().reference.teachers.isEmpty());
    QCOMPARE(program.session().reference.lessons.size(), std::size_t{2});
}

void StartUpTest::failure_names_the_file_data() {
    QTest::addColumn<QString>("missing");
    QTest::addColumn<bool>("hand_over_left");
    QTest::newRow("launcher") << hand_over_file << false;
    QTest::newRow("version") << Office::data("Dsys.mdb") << false;
    QTest::newRow("users") << Office::data("kbase.mdb") << false;
    QTest::newRow("term") << Office::data("2026ogr.mdb") << false;
    QTest::newRow("reference") << Office::data("Bilgi.mdb") << false;
}

void StartUpTest::failure_names_the_file() {
    QFETCH(QString, missing);
    const Office office;
    launch::prepare(office.hand_over());
    QVERIFY(paths::remove(missing));
    Program program;
    const QString words = refusal([&] { program.start(); });
    QVERIFY2(words.contains(missing), qPrintable(words));
    QTEST(paths::exists(hand_over_file), "hand_over_left");
}

void StartUpTest::other_version_stops_and_signs_off() {
    const Office office;
    Office::set_version_row(rich_text::from_plain("20.9"));
    launch::prepare(office.hand_over());
    prompt::Script script;
    script.expect("Sürüm uyuşmazlığı! Önce  Up21.1  programını çalıştırınız.");
    Program program;
    QVERIFY(!program.start());
    QCOMPARE(script.failures(), QStringList());
    QCOMPARE(script.seen().first().section('|', 0, 0), QStringLiteral("Dikkat"));
    QVERIFY(!program.form().isVisible());
    QVERIFY(!program.session().termDbOpen);
    QVERIFY(!Office::runs("Kurvo"));
    QCOMPARE(Office::version_row(), QStringLiteral("20.9"));
    QVERIFY(!paths::exists(hand_over_file));
    QVERIFY2(!paths::exists(Office::data("Prmt.txt")), "nothing is made for a start that stopped");
}

void StartUpTest::closing_signs_off() {
    const Office office;
    launch::prepare(office.hand_over());
    Office::add(programs_file, "prg", {{"KOD", "Kasa"}});
    Program program;
    QVERIFY(program.start());
    QVERIFY(Office::runs("Kurvo"));
    program.form().close();
    QVERIFY(!program.session().termDbOpen && !program.session().termDb.is_open());
    QVERIFY(!Office::runs("Kurvo"));
    QVERIFY2(Office::runs("Kasa"), "the other programs of the suite go on");
}

void StartUpTest::closing_is_never_held_up_data() {
    QTest::addColumn<QByteArray>("launcher_file");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("damaged") << QByteArray("no database at all");
}

void StartUpTest::closing_is_never_held_up() {
    QFETCH(QByteArray, launcher_file);
    const Office office;
    launch::prepare(office.hand_over());
    Program program;
    QVERIFY(program.start());
    QVERIFY(paths::remove(programs_file));
    if (!launcher_file.isNull()) Office::write(programs_file, launcher_file);
    QVERIFY(program.form().close());
    QVERIFY(!program.session().termDbOpen);
    QCOMPARE(Office::bytes(programs_file), launcher_file);
}

void StartUpTest::both_writers_of_the_flags() {
    const Office office;
    Office::student("2026", 7, "AYŞE");
    Office::write(tak, "\"0\"\r\n");
    launch::prepare(office.hand_over());
    Program program;
    QVERIFY(program.start());
    Kurvo& kurvo = program.form();
    QVERIFY(!kurvo.TABLO->isVisible() && !kurvo.bslk[0]->isEnabled());
    QVERIFY(kurvo.CheckKad->isChecked());
    QCOMPARE(Office::bytes(tak), QByteArray("\"0\"\r\n"));

    kurvo.CheckKad->click();
    QCOMPARE(Office::bytes(tak), QByteArray("\"00\"\r\n"));
    QTest::mouseClick(kurvo.TabloAcKapa, Qt::LeftButton);
    QCOMPARE(Office::bytes(tak), QByteArray("\"10\"\r\n"));
    QVERIFY(kurvo.TABLO->isVisible() && kurvo.bslk[0]->isEnabled());
    kurvo.CheckKad->click();
    QTest::mouseClick(kurvo.TabloAcKapa, Qt::LeftButton);
    QCOMPARE(Office::bytes(tak), QByteArray("\"01\"\r\n"));
}
