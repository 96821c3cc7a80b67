#include "office.h"
#include "support/run_all.h"
#include "workstation.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

// Student 7 with one instalment of 100, which the second workstation wants, too.
struct Instalment : Desk {
    Instalment() {
        add_instalment(rows, 7, "20261001", 100);
        rows.MoveFirst();
    }
    double amount() {
        auto second_opener = store::OpenDatabase(file);
        return second_opener.OpenRecordset("Odeme")["TUTAR"].number();
    }
};

}  // namespace

class SharingTest : public QObject {
    Q_OBJECT

private slots:
    void no_change_is_lost_between_workstations() {
        Instalment desk;
        Workstation first("raise", desk.file), second("raise", desk.file);
        QCOMPARE(first.hear() + second.hear(), "readyready");
        first.go_on();
        second.go_on();
        QCOMPARE(first.finish(), 0);
        QCOMPARE(second.finish(), 0);
        QCOMPARE(desk.amount(), 400.0);
    }

    void stamp_tells_of_every_write() {
        Instalment desk;
        const std::string first = desk.database.stamp();
        desk.amount();
        QCOMPARE(store::OpenDatabase(desk.file).stamp(), first);
        QCOMPARE(desk.database.stamp(), first);
        std::vector<std::string> stamps{first};
        for (int write = 0; write < 4; ++write) {
            auto other = store::OpenDatabase(desk.file);
            auto far = other.OpenRecordset("Odeme");
            set(write % 2 ? desk.rows : far, "TUTAR", write);
            stamps.push_back(desk.database.stamp());
            QCOMPARE(other.stamp(), stamps.back());
        }
        std::ranges::sort(stamps);
        QVERIFY(std::ranges::adjacent_find(stamps) == stamps.end());
    }

    void edit_waits_then_says_who_holds_the_file() {
        Instalment desk;
        Workstation other("hold", desk.file);
        QCOMPARE(other.hear(), "held");
        QCOMPARE(desk.amount(), 100.0);  // reading goes on

        QElapsedTimer clock;
        clock.start();
        QString said;
        try {
            desk.rows.Edit();
            QFAIL("the other one holds the file");
        } catch (const std::system_error& failure) {
            QVERIFY(failure.code() == store::Errc::locked);
            said = QString::fromUtf8(failure.what());
        }
        QVERIFY2(clock.elapsed() >= 4900 && clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY2(said.contains("Dosya başka bir iş istasyonu tarafından kilitli") && said.contains(desk.file),
                 qPrintable(said));
        QCOMPARE(other.finish(), 0);
        desk.rows.Edit();
        QCOMPARE(desk.rows["TUTAR"].number(), 777.0);  // the row as the other left it
    }

    void killed_workstation_leaves_nothing_half_written() {
        Instalment desk;
        for (const QString role : {"hold", "fill"}) {
            Workstation other(role, desk.file);
            QCOMPARE(other.hear(), "held");
            other.kill();
            const bool is_file_half_written = role == "fill" && !test_engine::is_server();
            QCOMPARE(QFile::exists(desk.drives.path("c/okul/2026ogr.mdb-journal")), is_file_half_written);
            QCOMPARE(desk.rows.RecordCount(), 1);
            QCOMPARE(desk.amount(), 100.0);
            QCOMPARE(desk.database.OpenRecordset("Dmazeret").RecordCount(), 0);
            set(desk.rows, "ACK", role);
        }
    }

    void failed_write_leaves_the_file_as_it_was() {
#ifdef Q_OS_WIN
        QSKIP("no limit on the size of files");
#endif
        if (test_engine::is_server()) QSKIP("the disk is not this process's");
        Instalment desk;
        Workstation other("overflow", desk.file);
        const QString said = other.hear();
        QVERIFY2(said.contains("aygıt hatası: " + desk.file) || said.contains("Disk dolu"), qPrintable(said));
        QCOMPARE(desk.amount(), 100.0);  // the other one still runs and holds nothing
        add_instalment(desk.rows, 7, "20261101", 200);
        QCOMPARE(other.finish(), 0);
        QCOMPARE(desk.database.OpenRecordset("Dmazeret").RecordCount(), 0);
    }
};

static const Registered<SharingTest> registered;
#include "sharing_test.moc"
