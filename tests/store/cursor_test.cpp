#include "office.h"
#include "support/run_all.h"

namespace {

// Instalments 1 to 9 of student 7, on the first of each month.
struct Plan : Desk {
    Plan() {
        for (int month = 1; month <= 9; ++month) add_instalment(rows, 7, 20260001 + 100 * month, month);
    }
    std::int64_t here() { return rows["TUTAR"].whole_number(); }
    std::int64_t next() { return rows.MoveNext(), here(); }
    std::int64_t seek(int month) { return rows.Seek("=", {7, 20260001 + 100 * month}), here(); }
};

}  // namespace

class CursorTest : public QObject {
    Q_OBJECT

private slots:
    void stands_where_it_stood_after_a_write() {
        Plan plan;
        auto second_opener = store::OpenDatabase(plan.file);
        auto far = second_opener.OpenRecordset("Odeme");
        QCOMPARE(far["TUTAR"].whole_number(), 1);  // opens on the first row
        plan.seek(9);
        far.MoveLast();
        far.Delete();
        QVERIFY(code_of([&] { plan.rows.Edit(); }) == store::Errc::row_gone);
        QVERIFY(code_of([&] { plan.rows.Delete(); }) == store::Errc::row_gone);
        add_instalment(far, 8, "20260101", 10);  // may come back under the number of the deleted row
        QVERIFY(code_of([&] { plan.rows.Edit(); }) == store::Errc::row_gone);
        QCOMPARE(plan.rows.RecordCount(), 9);

        plan.seek(4);
        add_instalment(plan.rows, 7, "20260415", 45);
        QCOMPARE(plan.here(), 4);
        QCOMPARE(plan.next(), 45);

        plan.seek(2);
        set(plan.rows, "VADE", "20260615");
        QCOMPARE(plan.here(), 2);
        QCOMPARE(plan.next(), 7);

        plan.seek(3);
        plan.rows.Delete();
        QVERIFY(!plan.rows.Eof());
        QVERIFY(!refusal([&] { plan.here(); }).isEmpty());
        QCOMPARE(plan.next(), 4);

        plan.rows.MoveLast(), plan.rows.MoveNext();
        QVERIFY(plan.rows.Eof());
        QCOMPARE(walk(far, "TUTAR"), (QStringList{"1", "4", "45", "5", "6", "2", "7", "8", "10"}));
    }

    void drops_what_was_not_committed() {
        Plan plan;
        auto second_opener = store::OpenDatabase(plan.file);
        auto far = second_opener.OpenRecordset("Odeme"), near = plan.database.OpenRecordset("Odeme");
        {
            store::WriteScope scope(plan.database);
            set(near, "TUTAR", 100);
            add_instalment(near, 1, "20260101", 1);
            QVERIFY(code_of([&] { add_instalment(near, 1, "20260101", 2); }) == store::Errc::duplicate_key);
            QCOMPARE(plan.rows.RecordCount(), 10);
            QCOMPARE(far.RecordCount(), 9);
        }
        QCOMPARE(plan.seek(1), 1);
        plan.rows.Edit();
        add_instalment(near, 1, "20260101", 1);  // joins the edit of the other record set
        QCOMPARE(far.RecordCount(), 9);
        plan.rows["TUTAR"] = 500;
        plan.rows.Update();
        QCOMPARE(far.RecordCount(), 10);
        plan.rows.Edit();
        plan.rows["TUTAR"] = 600;
        plan.rows.CancelUpdate();
        QCOMPARE(plan.here(), 500);
        set(far, "ACK", "serbest");  // nobody holds the file any more
    }

    void misuse_is_refused() {
        Plan plan;
        const auto refused = [&](auto act) { return !refusal([&] { act(plan.rows); }).isEmpty(); };
        QVERIFY(refused([](auto& odeme) { odeme["TUTAR"] = 5; }));
        QVERIFY(refused([](auto& odeme) { odeme.Update(); }));
        QVERIFY(refused([](auto& odeme) { odeme.Seek("=", {8}), odeme.MoveNext(); }));
        QVERIFY(refused([](auto& odeme) { odeme.MoveFirst(), odeme.Edit(), odeme.MoveNext(); }));
        plan.database.Close();
        QVERIFY(refused([](auto& odeme) { odeme.Update(); }));
    }

    void fields_convert() {
        Desk desk("Ogrenci");
        add(desk.rows, {{"ONO", 1}, {"ORT9", " -3.5 "}, {"TEL", 5321234567}, {"SAKLA", 2.6}, {"SINIF", ""}});
        desk.rows.MoveFirst();
        QCOMPARE(desk.rows["ORT9"].value(), store::Value(-3.5));
        QCOMPARE(desk.rows["TEL"].value(), store::Value("5321234567"));
        QCOMPARE(desk.rows["SAKLA"].value(), store::Value(3));
        QCOMPARE(desk.rows["SINIF"].value(), store::Value(""));
        QVERIFY(refusal([&] { desk.rows["ADSOY"].required(); }).contains("ADSOY"));
        desk.rows.Edit();
        for (const store::Value& wrong : {store::Value("12,5"), store::Value(""), store::Value(1e19)})
            QVERIFY(refusal([&] { desk.rows["SAKLA"] = wrong; }).contains("SAKLA"));
    }
};

static const Registered<CursorTest> registered;
#include "cursor_test.moc"
