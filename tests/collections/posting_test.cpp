#include "collections_tests.h"
#include "platform/clock.h"
#include "platform/prompt.h"
#include "till.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

const QDateTime now(QDate(2026, 10, 5), QTime(14, 7, 9));

// The clock shows each second to so many askers.
class SlowClock {
public:
    explicit SlowClock(int askers) : askers_(askers) {}
    void start_again() { asked_ = 0; }

private:
    int askers_, asked_ = 0;
    clock_source::Override override_{[this] { return now.addSecs(asked_++ / askers_); }};
};

class FixedClock {
    clock_source::Override override_{[] { return now; }};
};

void two_instalments() {
    School::instalment("20261001", 1000);
    School::instalment("20261101", 500);
}

QStringList belgeno() {
    return School::rows(School::reference_file, "Belgeno", {"SERI", "SNO"});
}
QStringList kasa() {
    return School::rows(School::reference_file, "Kasa", {"TARIH", "SAAT", "TUTAR"});
}

// Changes or removes the instalment on another workstation.
void elsewhere(const char* vade, const std::function<void(store::Recordset&)>& change) {
    store::Database term = store::OpenDatabase(School::term_file);
    store::Recordset odeme = term.OpenRecordset("Odeme");
    odeme.Index("OVX");
    odeme.Seek("=", {School::student, vade});
    change(odeme);
}

}  // namespace

void PostingTest::collection_becomes_rows() {
    const FixedClock clock;
    School school;
    two_instalments();
    Till till;
    till.pick();
    till.type_amount("1200");
    till.begin_second_stage();
    till.press(till.kurvo.MOP);
    till.kurvo.KFISNO->setText("K7");
    till.press(till.kurvo.CommandOK);

    QCOMPARE(belgeno(), QStringList("M|1"));
    QCOMPARE(school.rows(School::reference_file, "Kasa", {"TARIH", "SAAT", "ACK", "TUTAR", "AE", "KOD", "TIP"}),
             QStringList("20261005|140709|1250  AYŞE NUR YILDIRIM #2026|1200|+|1|TL"));
    QCOMPARE(school.rows(School::term_file, "Tahsilat",
                         {"ONO", "VADE", "TARIH", "SAAT", "ODENEN", "KSAAT", "KASAFNO", "BTIP", "BNO", "FTAR", "FNO"}),
             QStringList({"1250|20261001|20261005|140709|1000|140709|K7|M|1| | ",
                          "1250|20261101|20261005|140709|200|140709|K7|M|1| | "}));
    QCOMPARE(school.odeme(), QStringList({"1250|20261001|1000", "1250|20261101|200"}));

    QCOMPARE(till.kurvo.TBORC->text(), "300");
    QCOMPARE(till.marks(), QStringList(""));
    QCOMPARE(till.kurvo.ODENEN->text() + till.kurvo.KASAODENEN->text(), QString());
    QVERIFY(till.kurvo.CommandTAHSIL->isVisible() && till.kurvo.LONO->isEnabled());
    QCOMPARE(school.papers.size(), std::size_t(1));
    QCOMPARE(school.failures, QStringList());
}

void PostingTest::documents_data() {
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("number");  // typed; null: as proposed
    QTest::addColumn<QStringList>("series");
    QTest::addColumn<QString>("document");  // BTIP, BNO, FTAR, FNO
    QTest::addColumn<QString>("prompt");
    const QString none = " | | | ", proposed, empty = "", plan = "ödeme planı bu sürümde henüz basılamıyor";
    QTest::newRow("receipt") << "MOP" << proposed << QStringList("M|41") << "M|41| | "
                             << "";
    QTest::newRow("receipt, by hand") << "MOP"
                                      << "3" << QStringList("M|3") << "M|3| | "
                                      << "";
    QTest::newRow("receipt, no number") << "MOP" << empty << QStringList("M|0") << none << "";
    QTest::newRow("invoice") << "FOP" << proposed << QStringList({"F|1", "M|40"}) << "F|1|20261005|1"
                             << "fatura bu sürümde henüz basılamıyor";
    QTest::newRow("plan") << "DOP" << proposed << QStringList("M|40") << none << plan;
    QTest::newRow("plan, number") << "DOP"
                                  << "77" << QStringList("M|40") << "F|77|20261005|77" << plan;
    QTest::newRow("none") << "" << empty << QStringList("M|40") << none << "";
    QTest::newRow("none, number") << ""
                                  << "A 5" << QStringList("M|40") << "F|A 5|20261005|A 5"
                                  << "";
}

void PostingTest::documents() {
    QFETCH(QString, option);
    QFETCH(QString, number);
    QFETCH(QString, prompt);
    const FixedClock clock;
    School school;
    two_instalments();
    school.add(School::reference_file, "Belgeno", {{"SERI", "M"}, {"SNO", 40}});
    prompt::Script script;
    if (!prompt.isEmpty()) script.expect(prompt);
    Till till;
    till.pick();
    till.type_amount("100");
    till.begin_second_stage();
    if (!option.isEmpty()) till.press(till.kurvo.findChild<QRadioButton*>(option));
    if (option == "FOP") till.press(till.kurvo.CommandOK2);
    if (!number.isNull()) till.kurvo.FTahsil_BNO->setText(number);
    till.press(till.kurvo.CommandOK);

    QTEST(belgeno(), "series");
    const QStringList rows = school.rows(School::term_file, "Tahsilat", {"BTIP", "BNO", "FTAR", "FNO"});
    QTEST(rows.join("/"), "document");
    QCOMPARE(school.rows(School::term_file, "Tahsilat", {"KASAFNO"}), QStringList(" "));
    QCOMPARE(kasa(), QStringList("20261005|140709|100"));
    QCOMPARE(school.papers.size(), std::size_t(option == "MOP"));
    QCOMPARE(script.failures(), QStringList());
}

void PostingTest::next_number_follows_the_posted_one() {
    School school;
    two_instalments();
    school.add(School::reference_file, "Belgeno", {{"SERI", "M"}, {"SNO", 40}});
    Till till;
    till.pick();
    till.type_amount("100");
    till.begin_second_stage();
    till.press(till.kurvo.MOP);
    till.kurvo.FTahsil_BNO->setText("7");
    till.press(till.kurvo.CommandOK);
    till.type_amount("100");
    till.begin_second_stage();
    till.press(till.kurvo.MOP);
    QCOMPARE(till.kurvo.FTahsil_BNO->text(), "8");
}

void PostingTest::day_of_a_collection_data() {
    QTest::addColumn<QString>("force");
    QTest::addColumn<QString>("day");
    QTest::newRow("as chosen") << "0"
                               << "20260901";
    QTest::newRow("today") << "1"
                           << "20261005";
}

void PostingTest::day_of_a_collection() {
    QFETCH(QString, force);
    QFETCH(QString, day);
    const FixedClock clock;
    School school;
    two_instalments();
    Till till;
    till.session.forceTodayOnPosting = force;
    till.pick();
    till.kurvo.FTahsil_TARIH->setDate(QDate(2026, 9, 1));
    till.collect("1", nullptr);
    QCOMPARE(kasa(), QStringList(day + "|140709|1"));
    QCOMPARE(school.tahsilat(), QStringList("1250|20261001|" + day + "|140709|1"));
}

void PostingTest::taken_seconds_are_waited_for() {
    SlowClock clock(3);
    School school;
    two_instalments();
    school.add(School::reference_file, "Kasa", {{"TARIH", "20261005"}, {"SAAT", "140709"}, {"TUTAR", 5}});
    school.add(School::term_file, "Tahsilat",
               {{"ONO", 1250}, {"VADE", "20261001"}, {"TARIH", "20261005"}, {"SAAT", "140710"}, {"ODENEN", 0}});
    Till till;
    till.pick();
    till.type_amount("1");
    till.begin_second_stage();
    clock.start_again();
    till.press(till.kurvo.CommandOK);
    QCOMPARE(kasa(), QStringList({"20261005|140709|5", "20261005|140710|1"}));
    QCOMPARE(school.tahsilat().last(), "1250|20261001|20261005|140711|1");
    QCOMPARE(school.rows(School::term_file, "Tahsilat", {"KSAAT"}).last(), "140710");
}

void PostingTest::two_workstations_collect_from_one_student() {
    SlowClock clock(20);
    School school;
    two_instalments();
    Till first, second;
    first.pick();
    second.pick();
    clock.start_again();
    first.collect("400", first.kurvo.MOP);
    second.collect("300", second.kurvo.MOP);
    QCOMPARE(school.odeme(), QStringList({"1250|20261001|700", "1250|20261101|0"}));
    QCOMPARE(kasa(), QStringList({"20261005|140709|400", "20261005|140710|300"}));
    QCOMPARE(school.tahsilat().size(), 2);
    QCOMPARE(second.kurvo.TBORC->text(), "800");
    first.pick();
    QCOMPARE(first.kurvo.TBORC->text(), "800");
    QCOMPARE(school.failures, QStringList());
}

void PostingTest::refused_collections_write_nothing_data() {
    using Change = std::function<void(Till&)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("nothing paid") << Change([](Till& till) { till.correct(1, "0"); });
    QTest::newRow("other number") << Change([](Till& till) { till.kurvo.LONO->setText("1251"); });
    QTest::newRow("no student") << Change([](Till& till) { till.session.studentSelected = false; });
}

void PostingTest::refused_collections_write_nothing() {
    QFETCH(std::function<void(Till&)>, change);
    School school;
    two_instalments();
    Till till;
    till.pick();
    till.type_amount("100");
    till.begin_second_stage();
    till.press(till.kurvo.MOP);
    change(till);
    till.press(till.kurvo.CommandOK);
    QCOMPARE(belgeno() + kasa() + school.tahsilat(), QStringList());
    QVERIFY(till.kurvo.FTahsil_Frame1->isVisible());
}

void PostingTest::rows_without_amount_or_instalment() {
    const FixedClock clock;
    School school;
    two_instalments();
    school.instalment("20261201", 50);
    Till till;
    till.pick();
    for (int row = 0; row < 3; ++row) till.click_row(row);
    till.begin_second_stage();
    till.correct(1, "0");
    elsewhere("20261101", [](store::Recordset& odeme) { odeme.Delete(); });
    till.press(till.kurvo.CommandOK);
    QCOMPARE(kasa(), QStringList("20261005|140709|550"));
    QCOMPARE(school.tahsilat(), QStringList({"1250|20261101|20261005|140709|500", "1250|20261201|20261005|140709|50"}));
    QCOMPARE(school.odeme(), QStringList({"1250|20261001|0", "1250|20261201|50"}));
}

void PostingTest::failure_keeps_what_was_written() {
    const FixedClock clock;
    School school;
    two_instalments();
    Till till;
    till.pick();
    till.type_amount("1500");
    till.begin_second_stage();
    till.press(till.kurvo.MOP);
    elsewhere("20261101", [](store::Recordset& odeme) {
        odeme.Edit();
        odeme["ODENEN"] = store::Value();
        odeme.Update();
    });
    till.press(till.kurvo.CommandOK);
    QCOMPARE(school.failures.size(), 1);
    QCOMPARE(belgeno(), QStringList("M|1"));
    QCOMPARE(kasa(), QStringList("20261005|140709|1500"));
    // The payment on the broken instalment went with it.
    QCOMPARE(school.tahsilat(), QStringList("1250|20261001|20261005|140709|1000"));
    QCOMPARE(school.odeme(), QStringList({"1250|20261001|1000", "1250|20261101|"}));
    QVERIFY(school.papers.empty());
}

void PostingTest::broken_printer_costs_only_the_paper() {
    School school;
    two_instalments();
    qputenv("KURVO_PRINTER", "Bozuk");
    prompt::Script script;
    script.expect("Tahsilat kaydedildi, fakat makbuz basılamadı");
    Till till;
    till.pick();
    till.collect("100", till.kurvo.MOP);
    QCOMPARE(script.failures() + school.failures, QStringList());
    QCOMPARE(school.odeme().first(), "1250|20261001|100");
    QVERIFY(!till.kurvo.FTahsil_Frame1->isVisible());
    QCOMPARE(kasa().size(), 1);
}

// However it was collected, the payments of each instalment add up to what is paid on it.
void PostingTest::payments_add_up() {
    SlowClock clock(1);
    School school;
    for (int month = 1; month <= 6; ++month) school.instalment(QString::number(20260001 + 100 * month), 100 * month);
    Till till;
    QRandomGenerator random(7);
    for (int i = 0; i < 12; ++i) {
        till.pick();
        if (random.bounded(2) == 0) {
            till.type_amount(QString::number(random.bounded(1, 400)));
        } else {
            till.click_row(random.bounded(till.kurvo.FTahsil_Tablo2->rows()));
        }
        till.begin_second_stage();
        till.correct(1, QString::number(random.bounded(1, 90)));
        till.press(till.kurvo.CommandOK);
    }
    QHash<QString, double> paid;
    for (const QString& row : school.rows(School::term_file, "Tahsilat", {"VADE", "ODENEN"}))
        paid[row.section('|', 0, 0)] += row.section('|', 1).toDouble();
    QVERIFY(paid.size() > 1);
    for (const QString& row : school.rows(School::term_file, "Odeme", {"VADE", "ODENEN"}))
        QCOMPARE(row.section('|', 1).toDouble(), paid[row.section('|', 0, 0)]);
    QCOMPARE(kasa().size(), 12);
}
