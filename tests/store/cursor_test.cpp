#include "office.h"
#include "support/run_all.h"

#include <functional>

namespace {

QString first_of(int month) {
    return QString::number(20260001 + 100 * month);
}

// Instalments 1 to 9 of student 7, on the first of each month.
struct Plan : Office {
    Plan() {
        store::WriteScope scope(database);
        for (int month = 1; month <= 9; ++month) add_instalment(odeme, 7, first_of(month), month);
        scope.commit();
    }
    void seek(int month) { odeme.Seek("=", {7, first_of(month)}); }
    int here() { return static_cast<int>(odeme["TUTAR"].whole_number()); }

    store::Database database = store::OpenDatabase(file);
    store::Recordset odeme = database.OpenRecordset("Odeme");
};

void set(store::Recordset& records, std::string_view field, const store::Value& value) {
    records.Edit();
    records[field] = value;
    records.Update();
}

}  // namespace

class CursorTest : public QObject {
    Q_OBJECT

private slots:
    void opens_on_the_first_row() {
        Plan plan;
        auto again = plan.database.OpenRecordset("Odeme");
        QVERIFY(!again.Eof());
        QVERIFY(!again.NoMatch());
        QCOMPARE(again["TUTAR"].whole_number(), 1);
        auto empty = plan.database.OpenRecordset("Devam");
        QVERIFY(empty.Eof());
        QVERIFY(!empty.has_rows());
        QVERIFY(again.has_rows());
    }

    void stays_where_it_was_after_adding() {
        Plan plan;
        plan.seek(4);
        add_instalment(plan.odeme, 7, "20260415", 45);
        QCOMPARE(plan.here(), 4);
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 45);

        auto devam = plan.database.OpenRecordset("Devam");
        add(devam, {{"ONO", 7}, {"TARIH", "20261001"}, {"DKOD", "01"}});
        QVERIFY(devam.Eof());  // it stood on no row before
    }

    void moves_with_a_changed_key() {
        Plan plan;
        plan.seek(2);
        plan.odeme.Edit();
        plan.odeme["VADE"] = "20260615";
        plan.odeme["TUTAR"] = 65;
        QCOMPARE(plan.odeme["VADE"].text(), "20260615");
        plan.odeme.Update();
        QCOMPARE(plan.here(), 65);
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 7);
        QCOMPARE(walk(plan.odeme, "TUTAR"), (QStringList{"1", "3", "4", "5", "6", "65", "7", "8", "9"}));
    }

    void stays_on_the_deleted_place() {
        Plan plan;
        plan.seek(3);
        plan.odeme.Delete();
        QVERIFY(!plan.odeme.Eof());
        QVERIFY(!refusal([&] { plan.here(); }).isEmpty());
        QVERIFY(!refusal([&] { plan.odeme.Delete(); }).isEmpty());
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 4);

        plan.seek(9);
        plan.odeme.Delete();
        plan.odeme.MoveNext();
        QVERIFY(plan.odeme.Eof());
        QCOMPARE(plan.odeme.RecordCount(), 7);
    }

    void drops_a_cancelled_edit() {
        Plan plan;
        plan.seek(5);
        plan.odeme.Edit();
        plan.odeme["TUTAR"] = 500;
        plan.odeme.CancelUpdate();
        QCOMPARE(plan.here(), 5);
        {
            auto other = plan.database.OpenRecordset("Odeme");
            other.MoveLast();
            other.Edit();
            other["TUTAR"] = 900;
        }
        auto second_opener = store::OpenDatabase(plan.file);
        auto odeme = second_opener.OpenRecordset("Odeme");
        set(odeme, "ACK", "serbest");  // nobody holds the file any more
        odeme.MoveLast();
        QCOMPARE(odeme["TUTAR"].text(), "9");
    }

    void counts_exactly() {
        Plan plan;
        auto second_opener = store::OpenDatabase(plan.file);
        auto other = second_opener.OpenRecordset("Odeme");
        QCOMPARE(plan.odeme.RecordCount(), 9);
        other.MoveFirst();
        other.Delete();
        QCOMPARE(plan.odeme.RecordCount(), 8);
        plan.odeme.MoveFirst();
        add_instalment(other, 8, "20260101", 1);
        add_instalment(other, 8, "20260201", 2);
        QCOMPARE(plan.odeme.RecordCount(), 10);
        QCOMPARE(plan.odeme["TUTAR"].whole_number(), 2);  // the first row that is left
    }

    void sees_writes_of_this_process_at_once() {
        Plan plan;
        auto second_opener = store::OpenDatabase(plan.file);
        auto near = plan.database.OpenRecordset("Odeme");
        auto far = second_opener.OpenRecordset("Odeme");
        plan.odeme.MoveFirst();
        QCOMPARE(plan.here(), 1);

        far.Seek("=", {7, "20260201"});
        set(far, "TUTAR", 222);
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 222);

        near.Seek("=", {7, "20260201"});
        set(near, "TUTAR", 223);
        QCOMPARE(plan.here(), 223);  // the row it stands on
        add_instalment(near, 7, "20260210", 210);
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 210);

        far.Seek("=", {7, "20260301"});
        far.Delete();
        plan.odeme.MoveNext();
        QCOMPARE(plan.here(), 4);
    }

    void forgets_what_a_scope_rolled_back() {
        Plan plan;
        auto second_opener = store::OpenDatabase(plan.file);
        auto far = second_opener.OpenRecordset("Odeme");
        {
            store::WriteScope scope(plan.database);
            plan.seek(1);
            set(plan.odeme, "TUTAR", 100);
            add_instalment(plan.odeme, 1, "20260101", 1);
            QCOMPARE(plan.here(), 100);
            QCOMPARE(plan.odeme.RecordCount(), 10);
            QCOMPARE(far.RecordCount(), 9);
            QVERIFY(!refusal([&] { store::WriteScope nested(plan.database); }).isEmpty());
        }
        QCOMPARE(plan.here(), 1);
        QCOMPARE(plan.odeme.RecordCount(), 9);
        {
            store::WriteScope scope(plan.database);
            plan.odeme.Edit();
            QVERIFY(!refusal([&] { scope.commit(); }).isEmpty());  // an edit is open: all of it is dropped
        }
        QVERIFY(!refusal([&] { plan.odeme.Update(); }).isEmpty());
        plan.seek(2);
        set(plan.odeme, "TUTAR", 20);
        QCOMPARE(plan.here(), 20);
    }

    void edits_of_two_record_sets_join() {
        Plan plan;
        auto tahsilat = plan.database.OpenRecordset("Tahsilat");
        auto second_opener = store::OpenDatabase(plan.file);
        auto far = second_opener.OpenRecordset("Tahsilat");
        plan.seek(1);
        plan.odeme.Edit();
        add(tahsilat, {{"ONO", 7}, {"VADE", "20260101"}, {"TARIH", "20260105"}, {"SAAT", "090000"}, {"ODENEN", 1}});
        QCOMPARE(tahsilat.RecordCount(), 1);
        QCOMPARE(far.RecordCount(), 0);  // until the other edit has ended, too
        plan.odeme["ODENEN"] = 1;
        plan.odeme.Update();
        QCOMPARE(far.RecordCount(), 1);
    }

    void misuse_is_refused_data() {
        using Act = std::function<void(Plan&)>;
        QTest::addColumn<Act>("act");
        const auto row = [](const char* name, Act act) { QTest::newRow(name) << act; };
        row("first of an empty table", [](Plan& plan) { plan.database.OpenRecordset("Devam").MoveFirst(); });
        row("last of an empty table", [](Plan& plan) { plan.database.OpenRecordset("Devam").MoveLast(); });
        row("behind the last row",
            [](Plan& plan) { plan.odeme.MoveLast(), plan.odeme.MoveNext(), plan.odeme.MoveNext(); });
        row("read behind the last row", [](Plan& plan) { plan.odeme.MoveLast(), plan.odeme.MoveNext(), plan.here(); });
        row("on from no match", [](Plan& plan) { plan.odeme.Seek("=", {8, "x"}), plan.odeme.MoveNext(); });
        row("edit without a row", [](Plan& plan) { plan.odeme.Seek("=", {8, "x"}), plan.odeme.Edit(); });
        row("assignment without edit", [](Plan& plan) { plan.odeme["TUTAR"] = 5; });
        row("update without edit", [](Plan& plan) { plan.odeme.Update(); });
        row("cancel without edit", [](Plan& plan) { plan.odeme.CancelUpdate(); });
        row("edit within edit", [](Plan& plan) { plan.odeme.Edit(), plan.odeme.Edit(); });
        row("move within edit", [](Plan& plan) { plan.odeme.Edit(), plan.odeme.MoveNext(); });
        row("seek while adding", [](Plan& plan) { plan.odeme.AddNew(), plan.odeme.Seek("=", {7}); });
        row("closed record set", [](Plan& plan) { plan.odeme.Close(), plan.odeme.Eof(); });
        row("record set closed twice", [](Plan& plan) { plan.odeme.Close(), plan.odeme.Close(); });
        row("closed database", [](Plan& plan) { plan.here(), plan.database.Close(), plan.here(); });
        row("database closed twice", [](Plan& plan) { plan.database.Close(), plan.database.Close(); });
        row("closed while adding", [](Plan& plan) { plan.odeme.AddNew(), plan.database.Close(), plan.odeme.Update(); });
    }

    void misuse_is_refused() {
        QFETCH(std::function<void(Plan&)>, act);
        Plan plan;
        QVERIFY_EXCEPTION_THROWN(act(plan), std::runtime_error);
        if (!plan.database.is_open()) return;
        auto second_opener = store::OpenDatabase(plan.file);
        QCOMPARE(second_opener.OpenRecordset("Odeme").RecordCount(), 9);
    }
};

static const Registered<CursorTest> registered;
#include "cursor_test.moc"
