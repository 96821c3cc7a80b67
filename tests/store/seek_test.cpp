#include "office.h"
#include "support/run_all.h"

namespace {

// Payments of students 5, 7 and 12; TUTAR-like field ODENEN numbers the rows in the order of OVTX.
void fill_payments(store::Recordset& tahsilat) {
    const auto pay = [&](int ono, const char* vade, const char* tarih, const char* saat, int number) {
        add(tahsilat, {{"ONO", ono}, {"VADE", vade}, {"TARIH", tarih}, {"SAAT", saat}, {"ODENEN", number}});
    };
    pay(12, "20260901", "20260901", "080000", 5);
    pay(5, "20261101", "20261015", "100000", 3);
    pay(7, "20260901", "20260901", "080000", 4);
    pay(5, "20261001", "20261001", "090001", 2);
    pay(5, "20261001", "20261001", "090000", 1);
}

void seek(store::Recordset& records, const QString& comparison, const QStringList& keys) {
    const std::string how = comparison.toStdString();
    switch (keys.size()) {
        case 1:
            return records.Seek(how, {keys[0]});
        case 2:
            return records.Seek(how, {keys[0], keys[1]});
        case 3:
            return records.Seek(how, {keys[0], keys[1], keys[2]});
        default:
            return records.Seek(how, {keys[0], keys[1], keys[2], keys[3]});
    }
}

}  // namespace

class SeekTest : public QObject {
    Q_OBJECT

private slots:
    void finds_the_first_that_satisfies_data() {
        QTest::addColumn<QString>("comparison");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<int>("found");  // 0: no match

        const auto row = [](const char* comparison, const QStringList& keys, int found) {
            QTest::addRow("%s %s", comparison, qPrintable(keys.join(','))) << comparison << keys << found;
        };
        row("=", {"5"}, 1);
        row("=", {"5", "20261101"}, 3);
        row("=", {"5", "20261001", "20261001"}, 1);
        row("=", {"5", "20261001", "20261001", "090001"}, 2);
        row("=", {"5", "20261001", "20261001", "090002"}, 0);
        row("=", {"6"}, 0);
        row("=", {"12abc"}, 5);
        row("=", {""}, 0);
        row(">", {""}, 1);
        row(">", {"5"}, 4);
        row(">", {"5", ""}, 1);
        row(">", {"5", "20261001"}, 3);
        row(">", {"5", "20261001", ""}, 1);
        row(">", {"5", "20261001", "20261001"}, 3);
        row(">", {"5", "20261001", "20261001", "090000"}, 2);
        row(">", {"5", "20261001", "20261001", "090001"}, 3);
        row(">", {"5", "20261101", "20261015", "100000"}, 4);
        row(">", {"6", ""}, 4);
        row(">", {"7"}, 5);
        row(">", {"12", ""}, 5);
        row(">", {"12", "20260901"}, 0);
        row(">", {"12"}, 0);
    }

    void finds_the_first_that_satisfies() {
        QFETCH(QString, comparison);
        QFETCH(QStringList, keys);
        QFETCH(int, found);
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto tahsilat = database.OpenRecordset("Tahsilat");
        store::WriteScope scope(database);
        fill_payments(tahsilat);
        scope.commit();

        seek(tahsilat, comparison, keys);
        QCOMPARE(tahsilat.NoMatch(), found == 0);
        if (found == 0) {
            QVERIFY_EXCEPTION_THROWN(tahsilat["ODENEN"].text(), std::runtime_error);
            return;
        }
        QStringList rest, expected;
        for (; !tahsilat.Eof(); tahsilat.MoveNext()) rest << tahsilat["ODENEN"].text();
        for (int number = found; number <= 5; ++number) expected << QString::number(number);
        QCOMPARE(rest, expected);
    }

    void wrong_use_is_refused() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto odeme = database.OpenRecordset("Odeme");
        QVERIFY(refusal([&] { odeme.Index("OVTX"); }).contains("OVTX"));
        QVERIFY(refusal([&] { odeme.Seek("<", {5}); }).contains("Odeme"));
        QVERIFY(refusal([&] { odeme.Seek("=", {5, "20261001", "x"}); }).contains("2026ogr.mdb"));
        QVERIFY(refusal([&] { odeme["YOK"].text(); }).contains("YOK"));
        QVERIFY(refusal([&] { database.OpenRecordset("Yok"); }).contains("Yok"));
    }

    void prefix_scan_visits_one_student_data() {
        QTest::addColumn<int>("student");
        QTest::addColumn<int>("rows");
        QTest::newRow("first") << 5 << 3;
        QTest::newRow("last of the index") << 12 << 1;
        QTest::newRow("without rows, others follow") << 6 << 0;
        QTest::newRow("without rows, none follow") << 13 << 0;
        QTest::newRow("more than one batch") << 9 << 700;
    }

    void prefix_scan_visits_one_student() {
        QFETCH(int, student);
        QFETCH(int, rows);
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto tahsilat = database.OpenRecordset("Tahsilat");
        store::WriteScope scope(database);
        fill_payments(tahsilat);
        for (int i = 699; i >= 0; --i)
            add(tahsilat,
                {{"ONO", 9}, {"VADE", "20260901"}, {"TARIH", "20260901"}, {"SAAT", QString::number(100000 + i)}});
        scope.commit();

        QStringList times;
        store::scan_prefix(tahsilat, {student}, [&] {
            QCOMPARE(tahsilat["ONO"].whole_number(), student);
            times << tahsilat["VADE"].text() + tahsilat["TARIH"].text() + tahsilat["SAAT"].text();
        });
        QCOMPARE(times.size(), rows);
        QVERIFY(std::is_sorted(times.begin(), times.end()));

        int visited = 0;
        store::scan_prefix(tahsilat, {student, "20260901"}, [&] { return ++visited < 2; });
        QCOMPARE(visited, rows == 700 ? 2 : student == 12 ? 1 : 0);
    }

    void prefix_scan_over_equal_keys() {
        Drives drives;
        const QString file = drives.path("Bilgi.mdb");
        store::create_file(file, store::catalogue(store::FileKind::reference));
        auto database = store::OpenDatabase(file);
        auto servis = database.OpenRecordset("Servis");
        store::WriteScope scope(database);
        for (int stop = 0; stop < 50; ++stop) add(servis, {{"SNO", stop % 2}, {"DRK", stop}});
        scope.commit();
        QStringList stops, odd;
        store::scan_prefix(servis, {1}, [&] { stops << servis["DRK"].text(); });
        for (int stop = 1; stop < 50; stop += 2) odd << QString::number(stop);
        QCOMPARE(stops, odd);
    }

    void prefix_scan_may_change_and_delete() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto odeme = database.OpenRecordset("Odeme");
        store::WriteScope scope(database);
        for (int day = 10; day < 30; ++day) add_instalment(odeme, 7, QStringLiteral("202610%1").arg(day), day);
        add_instalment(odeme, 8, "20261001", 1);
        scope.commit();

        store::scan_prefix(odeme, {7}, [&] {
            if (odeme["TUTAR"].whole_number() % 2 != 0) return odeme.Delete();
            odeme.Edit();
            odeme["ODENEN"] = odeme["TUTAR"];
            odeme.Update();
        });
        QCOMPARE(walk(odeme, "ODENEN"), (QStringList{"10", "12", "14", "16", "18", "20", "22", "24", "26", "28", ""}));
    }
};

static const Registered<SeekTest> registered;
#include "seek_test.moc"
