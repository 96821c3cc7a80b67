#include "office.h"
#include "support/run_all.h"
#include "workstation.h"

#include <QElapsedTimer>

namespace {

// Student 7 with one instalment of 100, which the second workstation wants, too.
struct Desk : Office {
    Desk() { add_instalment(odeme, 7, "20261001", 100); }
    double amount() {
        auto second_opener = store::OpenDatabase(file);
        auto now = second_opener.OpenRecordset("Odeme");
        now.Seek("=", {7, "20261001"});
        return now["TUTAR"].number();
    }

    store::Database database = store::OpenDatabase(file);
    store::Recordset odeme = database.OpenRecordset("Odeme");
};

bool long_tests() {
    return qEnvironmentVariableIsSet("KURVO_LONG_TESTS");
}

}  // namespace

class SharingTest : public QObject {
    Q_OBJECT

private slots:
    void no_change_is_lost_between_workstations() {
        Desk desk;
        const int times = long_tests() ? 2000 : 150;
        Workstation first("raise", desk.file, {QString::number(times)}),
            second("raise", desk.file, {QString::number(times)});
        QCOMPARE(first.hear(), "ready");
        QCOMPARE(second.hear(), "ready");
        first.go_on();
        second.go_on();
        QCOMPARE(first.finish(), 0);
        QCOMPARE(second.finish(), 0);
        QCOMPARE(desk.amount(), 100.0 + 2 * times);
    }

    void edit_waits_then_says_who_holds_the_file() {
        Desk desk;
        Workstation other("hold", desk.file);
        QCOMPARE(other.hear(), "held");
        QCOMPARE(desk.amount(), 100.0);  // reading goes on

        QElapsedTimer clock;
        clock.start();
        QString said;
        desk.odeme.Seek("=", {7, "20261001"});
        const auto code = code_of([&] {
            try {
                desk.odeme.Edit();
            } catch (const std::exception& failure) {
                said = QString::fromUtf8(failure.what());
                throw;
            }
        });
        QVERIFY(code == store::Errc::locked);
        QVERIFY2(clock.elapsed() >= 4900 && clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY2(said.contains("Dosya başka bir iş istasyonu tarafından kilitli") && said.contains(desk.file) &&
                     said.contains("Odeme"),
                 qPrintable(said));
        QVERIFY(!refusal([&] { desk.odeme["TUTAR"] = 1; }).isEmpty());  // no edit has begun

        QCOMPARE(other.finish(), 0);
        QCOMPARE(desk.amount(), 777.0);
        desk.odeme.Edit();
        QCOMPARE(desk.odeme["TUTAR"].number(), 777.0);  // the row as the other left it
        desk.odeme["TUTAR"] = 778;
        desk.odeme.Update();
        QCOMPARE(desk.amount(), 778.0);
    }

    void killed_workstation_leaves_nothing_half_written_data() {
        QTest::addColumn<QString>("role");
        QTest::newRow("in an edit") << "hold";
        QTest::newRow("in a scope that has reached the disk") << "fill";
    }

    void killed_workstation_leaves_nothing_half_written() {
        QFETCH(QString, role);
        Desk desk;
        for (int kill = 0; kill < (long_tests() ? 20 : 2); ++kill) {
            Workstation other(role, desk.file);
            QCOMPARE(other.hear(), "held");
            other.kill();
            QCOMPARE(QFile::exists(desk.drives.path("c/okul/2026ogr.mdb-journal")), role == "fill");
            QCOMPARE(desk.odeme.RecordCount(), 1);
            QCOMPARE(desk.amount(), 100.0);
            QCOMPARE(desk.database.OpenRecordset("Dmazeret").RecordCount(), 0);
            desk.odeme.MoveFirst();
            desk.odeme.Edit();
            desk.odeme["ACK"] = kill;
            desk.odeme.Update();
        }
    }

    void failed_write_leaves_the_file_as_it_was() {
#ifdef Q_OS_WIN
        QSKIP("no limit on the size of files");
#endif
        Desk desk;
        Workstation other("overflow", desk.file);
        const QString said = other.hear();
        QVERIFY2(said.contains("aygıt hatası: " + desk.file) || said.contains("Disk dolu"), qPrintable(said));
        QCOMPARE(desk.odeme.RecordCount(), 1);  // the other one still runs and holds nothing
        add_instalment(desk.odeme, 7, "20261101", 200);
        QCOMPARE(other.finish(), 0);
        QCOMPARE(desk.odeme.RecordCount(), 2);
    }

    void duplicate_key_is_told() {
        Desk desk;
        const auto code = code_of([&] { add_instalment(desk.odeme, 7, "20261001", 5); });
        QVERIFY(code == store::Errc::duplicate_key);
        add_instalment(desk.odeme, 7, "20261101", 200);
        desk.odeme.Seek("=", {7, "20261101"});
        desk.odeme.Edit();
        desk.odeme["VADE"] = "20261001";
        QVERIFY(code_of([&] { desk.odeme.Update(); }) == store::Errc::duplicate_key);
        QCOMPARE(walk(desk.odeme, "TUTAR"), (QStringList{"100", "200"}));

        store::WriteScope scope(desk.database);  // one refused row leaves the others of the scope
        add_instalment(desk.odeme, 7, "20261201", 300);
        QVERIFY(code_of([&] { add_instalment(desk.odeme, 7, "20261201", 301); }) == store::Errc::duplicate_key);
        add_instalment(desk.odeme, 7, "20270101", 400);
        scope.commit();
        QCOMPARE(walk(desk.odeme, "TUTAR"), (QStringList{"100", "200", "300", "400"}));
    }

    void gone_row_is_told() {
        Desk desk;
        auto second_opener = store::OpenDatabase(desk.file);
        auto far = second_opener.OpenRecordset("Odeme");
        desk.odeme.Seek("=", {7, "20261001"});
        QCOMPARE(desk.odeme["TUTAR"].number(), 100.0);
        far.Delete();
        QVERIFY(code_of([&] { desk.odeme.Edit(); }) == store::Errc::row_gone);
        QVERIFY(code_of([&] { desk.odeme.Delete(); }) == store::Errc::row_gone);

        add_instalment(far, 9, "20261001", 900);  // may come back under the number of the deleted row
        QVERIFY(code_of([&] { desk.odeme.Edit(); }) == store::Errc::row_gone);
        QCOMPARE(far.RecordCount(), 1);

        far.Seek("=", {9, "20261001"});
        desk.odeme.Seek("=", {9, "20261001"});
        desk.odeme.Edit();
        desk.odeme["TUTAR"] = 901;
        desk.odeme.Update();
        far.Edit();
        QCOMPARE(far["TUTAR"].number(), 901.0);
        far.CancelUpdate();
    }

    void busy_writer_lets_others_in() {
        Desk desk;
        Workstation other("raise", desk.file, {"3"});
        QCOMPARE(other.hear(), "ready");
        auto devam = desk.database.OpenRecordset("Devam");
        other.go_on();
        store::WriteScope scope(desk.database);
        for (int i = 0; other.is_running(); ++i) {
            add(devam, {{"ONO", i}, {"TARIH", "20261001"}, {"DKOD", "01"}});
            scope.pause_if_due();
        }
        scope.commit();
        QCOMPARE(other.finish(), 0);
        QCOMPARE(desk.amount(), 103.0);
    }
};

static const Registered<SharingTest> registered;
#include "sharing_test.moc"
