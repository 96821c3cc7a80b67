#include "office.h"
#include "support/run_all.h"

#include <random>

using store::Value;

class SeekTest : public QObject {
    Q_OBJECT

private slots:
    void finds_the_first_that_satisfies() {
        Desk desk("Tahsilat");
        const auto pay = [&](int ono, const char* vade, const char* tarih, const char* saat, int number) {
            add(desk.rows, {{"ONO", ono}, {"VADE", vade}, {"TARIH", tarih}, {"SAAT", saat}, {"ODENEN", number}});
        };
        pay(12, "20260901", "20260901", "080000", 5);
        pay(5, "20261101", "20261015", "100000", 3);
        pay(7, "20260901", "20260901", "080000", 4);
        pay(5, "20261001", "20261001", "090001", 2);
        pay(5, "20261001", "20261001", "090000", 1);
        // The numbers of the rows from the found one to the end.
        const auto found = [&](std::string_view comparison, std::initializer_list<Value> keys) {
            desk.rows.Seek(comparison, keys);
            QString numbers;
            for (; !desk.rows.NoMatch() && !desk.rows.Eof(); desk.rows.MoveNext())
                numbers += desk.rows["ODENEN"].text();
            return numbers;
        };
        QCOMPARE(found("=", {"5"}), "12345");
        QCOMPARE(found("=", {5, 20261101}), "345");
        QCOMPARE(found("=", {"5", "20261001", "20261001", "090001"}), "2345");
        QCOMPARE(found("=", {"5", "20261001", "20261001", "090002"}), "");
        QCOMPARE(found("=", {"5", "20261001", "20261001"}), "12345");
        QCOMPARE(found("=", {"12abc"}), "5");
        QCOMPARE(found(">", {"5"}), "45");
        QCOMPARE(found(">", {"5", ""}), "12345");
        QCOMPARE(found(">", {"5", "20261001"}), "345");
        QCOMPARE(found(">", {"5", "20261001", "20261001", "090000"}), "2345");
        QCOMPARE(found(">", {"5", "20261101", "20261015", "100000"}), "45");
        QCOMPARE(found(">", {"5", "20261001", "20261001"}), "345");
        QCOMPARE(found(">", {"12"}), "");
        QCOMPARE(found("=", {"6"}), "");
        QVERIFY(desk.rows.NoMatch() && !refusal([&] { desk.rows["ODENEN"].text(); }).isEmpty());
    }

    void texts_stand_in_turkish_order() {
        const QStringList ordered = {"-A", "1A", "9", "b", "C", "ç", "G", "Ğ", "H", "I", "ı1", "İ",
                                     "i1", "J",  "O", "ö", "S", "Ş", "T", "U", "Ü", "V", "Z"};
        QStringList mixed = ordered;
        std::shuffle(mixed.begin(), mixed.end(), std::mt19937(7));
        Desk desk("Sinif");
        store::WriteScope scope(desk.database);
        for (const QString& code : mixed) add(desk.rows, {{"SINIF", code}});
        QCOMPARE(walk(desk.rows, "SINIF"), ordered);
        add(desk.rows, {{"SINIF", "IŞİK"}});  // case does not tell keys apart
        desk.rows.Seek("=", {"ışik"});
        QVERIFY(!desk.rows.NoMatch());
        desk.rows.Seek("=", {"işık"});
        QVERIFY(desk.rows.NoMatch());
        QVERIFY(code_of([&] { add(desk.rows, {{"SINIF", "ıŞik"}}); }) == store::Errc::duplicate_key);
    }

    void null_stands_before_every_key() {
        Desk desk;
        const Value null;
        QStringList expected;
        const auto expect = [&](const Value& ono, const Value& vade) {
            expected << QString::number(expected.size());
            add(desk.rows, {{"ONO", ono}, {"VADE", vade}, {"TUTAR", expected.last()}});
        };
        store::WriteScope scope(desk.database);
        for (int i = 0; i < 50; ++i) expect(null, null);
        expect(null, "20260101");
        for (int i = 0; i < 200; ++i) expect(5, null);
        expect(5, "");
        expect(6, null);
        for (int i = 0; i < 700; ++i) expect(7, 1000 + i);
        QCOMPARE(walk(desk.rows, "TUTAR"), expected);

        // Every step anew, as when this process writes in between.
        auto other = desk.database.OpenRecordset("Odeme");
        QStringList seen;
        store::scan_all(desk.rows, [&] {
            seen << desk.rows["TUTAR"].text();
            set(other, "ACK", seen.last());
        });
        QCOMPARE(seen, expected);

        desk.rows.Seek("=", {5, null});
        QCOMPARE(desk.rows["TUTAR"].text(), "51");
        desk.rows.Seek(">", {5, null});
        QCOMPARE(desk.rows["VADE"].value(), Value(""));
    }
};

static const Registered<SeekTest> registered;
#include "seek_test.moc"
