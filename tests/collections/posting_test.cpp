#include "platform/clock.h"
#include "platform/prompt.h"
#include "support/run_all.h"
#include "till.h"

namespace {

const QDateTime now(QDate(2026, 10, 5), QTime(14, 7, 9));

// The clock shows each second to so many askers.
class SlowClock {
    int askers_, asked_ = 0;
    clock_source::Override override_{[this] { return now.addSecs(asked_++ / askers_); }};

public:
    explicit SlowClock(int askers) : askers_(askers) {}
    void start_again() { asked_ = 0; }
};

void two_instalments(const TillFiles& files) {
    files.instalment("20261001", 1000);
    files.instalment("20261101", 500);
}

QStringList belgeno(const TillFiles& files) {
    return files.rows("Belgeno", {"SERI", "SNO"});
}
QStringList kasa(const TillFiles& files) {
    return files.rows("Kasa", {"TARIH", "SAAT", "TUTAR"});
}

}  // namespace

class PostingTest : public QObject {
    Q_OBJECT

private slots:
    void collection_becomes_rows() {
        SlowClock clock(100000);
        TillFiles files;
        two_instalments(files);
        Till till;
        till.pick();
        till.type_amount("1200");
        till.begin_second_stage();
        till.press(till.kurvo.MOP);
        till.kurvo.KFISNO->setText("K7");
        till.press(till.kurvo.CommandOK);

        QCOMPARE(belgeno(files), QStringList("M|1"));
        QCOMPARE(files.rows("Kasa", {"TARIH", "SAAT", "ACK", "TUTAR", "AE", "KOD", "TIP"}),
                 QStringList("20261005|140709|1250  AYŞE NUR YILDIRIM #2026|1200|+|1|TL"));
        QCOMPARE(files.rows("Tahsilat", {"ONO", "VADE", "TARIH", "SAAT", "ODENEN", "KSAAT", "KASAFNO", "BTIP", "BNO",
                                         "FTAR", "FNO"}),
                 QStringList({"1250|20261001|20261005|140709|1000|140709|K7|M|1| | ",
                              "1250|20261101|20261005|140709|200|140709|K7|M|1| | "}));
        QCOMPARE(files.odeme(), QStringList({"1250|20261001|1000", "1250|20261101|200"}));

        QCOMPARE(till.kurvo.TBORC->text(), "300");
        QCOMPARE(till.marks(), QStringList(""));
        QCOMPARE(till.kurvo.ODENEN->text() + till.kurvo.KASAODENEN->text(), QString());
        QVERIFY(till.kurvo.CommandTAHSIL->isVisible() && till.kurvo.LONO->isEnabled());
        QCOMPARE(files.papers.size(), std::size_t(1));
        QCOMPARE(files.failures, QStringList());
    }

    void documents() {
        SlowClock clock(1);
        TillFiles files;
        two_instalments(files);
        files.add("Belgeno", {{"SERI", "M"}, {"SNO", 40}});
        QStringList other_papers;
        Till till({[&] { other_papers << "fatura"; }, [&] { other_papers << "plan"; }});
        const auto collect = [&](QRadioButton* option, const QString& number = {}) {
            till.pick();
            till.type_amount("100");
            till.begin_second_stage();
            till.press(option);
            if (option == till.kurvo.FOP) till.press(till.kurvo.CommandOK2);
            if (!number.isNull()) till.kurvo.FTahsil_BNO->setText(number);
            till.press(till.kurvo.CommandOK);
        };
        collect(till.kurvo.MOP);
        collect(till.kurvo.MOP, "3");
        collect(till.kurvo.MOP);
        collect(till.kurvo.FOP);
        collect(till.kurvo.DOP);
        QCOMPARE(belgeno(files), QStringList({"F|1", "M|4"}));
        QCOMPARE(files.rows("Tahsilat", {"BTIP", "BNO", "FTAR", "FNO"}),
                 QStringList({"M|41| | ", "M|3| | ", "M|4| | ", "F|1|20261005|1", " | | | "}));
        QCOMPARE(files.papers.size(), std::size_t(3));
        QCOMPARE(other_papers, QStringList({"fatura", "plan"}));
    }

    void today_is_forced() {
        SlowClock clock(100000);
        TillFiles files;
        two_instalments(files);
        Till till;
        for (const char* force : {"0", "1"}) {
            till.session.forceTodayOnPosting = force;
            till.pick();
            till.kurvo.FTahsil_TARIH->setDate(QDate(2026, 9, 1));
            till.collect("1", nullptr);
        }
        QCOMPARE(kasa(files), QStringList({"20260901|140709|1", "20261005|140709|1"}));
        QCOMPARE(files.tahsilat(), QStringList({"1250|20261001|20260901|140709|1", "1250|20261001|20261005|140709|1"}));
    }

    void taken_seconds_are_waited_for() {
        SlowClock clock(3);
        TillFiles files;
        two_instalments(files);
        files.add("Kasa", {{"TARIH", "20261005"}, {"SAAT", "140709"}, {"TUTAR", 5}});
        files.add("Tahsilat",
                  {{"ONO", 1250}, {"VADE", "20261001"}, {"TARIH", "20261005"}, {"SAAT", "140710"}, {"ODENEN", 0}});
        Till till;
        till.pick();
        till.type_amount("1");
        till.begin_second_stage();
        clock.start_again();
        till.press(till.kurvo.CommandOK);
        QCOMPARE(kasa(files), QStringList({"20261005|140709|5", "20261005|140710|1"}));
        QCOMPARE(files.tahsilat().last(), "1250|20261001|20261005|140711|1");
        QCOMPARE(files.rows("Tahsilat", {"KSAAT"}).last(), "140710");
    }

    void two_workstations_collect_from_one_student() {
        SlowClock clock(20);
        TillFiles files;
        two_instalments(files);
        Till first, second;
        first.pick();
        second.pick();
        clock.start_again();
        first.collect("400", first.kurvo.MOP);
        second.collect("300", second.kurvo.MOP);
        QCOMPARE(files.odeme(), QStringList({"1250|20261001|700", "1250|20261101|0"}));
        QCOMPARE(kasa(files), QStringList({"20261005|140709|400", "20261005|140710|300"}));
        QCOMPARE(files.tahsilat().size(), 2);
        QCOMPARE(second.kurvo.TBORC->text(), "800");
        first.pick();
        QCOMPARE(first.kurvo.TBORC->text(), "800");
        QCOMPARE(files.failures, QStringList());
    }

    void failure_keeps_what_was_written() {
        SlowClock clock(100000);
        TillFiles files;
        two_instalments(files);
        Till till;
        till.pick();
        till.type_amount("1500");
        till.begin_second_stage();
        till.press(till.kurvo.MOP);
        store::Database term = store::OpenDatabase(files.term_file());  // on another workstation
        store::Recordset odeme = term.OpenRecordset("Odeme");
        odeme.Index("OVX");
        odeme.Seek("=", {TillFiles::payer, "20261101"});
        odeme.Edit();
        odeme["ODENEN"] = store::Value();
        odeme.Update();
        till.press(till.kurvo.CommandOK);
        QCOMPARE(files.failures.size(), 1);
        QCOMPARE(belgeno(files), QStringList("M|1"));
        QCOMPARE(kasa(files), QStringList("20261005|140709|1500"));
        // The payment on the broken instalment went with it.
        QCOMPARE(files.tahsilat(), QStringList("1250|20261001|20261005|140709|1000"));
        QCOMPARE(files.odeme(), QStringList({"1250|20261001|1000", "1250|20261101|"}));
        QVERIFY(files.papers.empty());
    }
};

static const Registered<PostingTest> registered;
#include "posting_test.moc"
