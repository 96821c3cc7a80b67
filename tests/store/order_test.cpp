#include "office.h"
#include "support/run_all.h"

#include <random>

class OrderTest : public QObject {
    Q_OBJECT

private slots:
    void classes_stand_in_turkish_order() {
        const QStringList ordered = {"-A", "1A", "9", "A1", "b", "C", "ç", "D", "G", "Ğ", "H", "I", "ı1", "İ",
                                     "i1", "J",  "O", "ö",  "P", "S", "Ş", "T", "U", "Ü", "V", "Y", "Z"};
        QStringList mixed = ordered;
        std::shuffle(mixed.begin(), mixed.end(), std::mt19937(7));
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto sinif = database.OpenRecordset("Sinif");
        store::WriteScope scope(database);
        for (const QString& code : mixed) add(sinif, {{"SINIF", code}});
        scope.commit();

        QCOMPARE(walk(sinif, "SINIF"), ordered);
        sinif.Seek(">", {"h"});
        QCOMPARE(sinif["SINIF"].text(), "I");
        sinif.Seek(">", {"i"});  // İ and i are one letter, behind I and ı
        QCOMPARE(sinif["SINIF"].text(), "i1");
        sinif.MoveLast();
        QCOMPARE(sinif["SINIF"].text(), "Z");
    }

    void case_does_not_tell_keys_apart() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto sinif = database.OpenRecordset("Sinif");
        add(sinif, {{"SINIF", "IŞİK"}});
        sinif.Seek("=", {"ışik"});
        QVERIFY(!sinif.NoMatch());
        sinif.Seek("=", {"işık"});
        QVERIFY(sinif.NoMatch());
        QVERIFY(code_of([&] { add(sinif, {{"SINIF", "ıŞik"}}); }) == store::Errc::duplicate_key);
    }

    void null_stands_before_every_key() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto odeme = database.OpenRecordset("Odeme");
        const store::Value null;
        int number = 100;
        QStringList expected;
        const auto expect = [&](const store::Value& ono, const store::Value& vade) {
            add(odeme, {{"ONO", ono}, {"VADE", vade}, {"TUTAR", number}});
            expected << QString::number(number++);
        };
        store::WriteScope scope(database);
        for (int i = 0; i < 50; ++i) expect(null, null);
        expect(null, "20260101");
        for (int i = 0; i < 50; ++i) expect(5, null);
        expect(5, "");
        expect(5, "20260101");
        expect(6, null);
        expect(6, "20260101");
        scope.commit();
        QCOMPARE(walk(odeme, "TUTAR"), expected);

        // Every step anew, as when this process writes in between.
        auto other = database.OpenRecordset("Odeme");
        QStringList seen;
        store::WriteScope second(database);
        store::scan_all(odeme, [&] {
            seen << odeme["TUTAR"].text();
            other.MoveLast();
            other.Edit();
            other["ACK"] = seen.last();
            other.Update();
        });
        second.commit();
        QCOMPARE(seen, expected);

        odeme.Seek("=", {5, null});
        QCOMPARE(odeme["TUTAR"].text(), "151");
        odeme.Seek(">", {5, null});
        QCOMPARE(odeme["VADE"].value(), store::Value(""));
        odeme.Seek(">", {null});
        QCOMPARE(odeme["TUTAR"].text(), "151");
        odeme.Seek(">", {5, ""});
        QCOMPARE(odeme["VADE"].text(), "20260101");
    }

    void equal_keys_stand_in_order_of_entry() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto etud = database.OpenRecordset("Etud");
        QStringList expected;
        store::WriteScope scope(database);
        for (int student = 300; student > 0; --student) {
            add(etud, {{"ONO", student}, {"TARIH", "20261001"}, {"SAAT", "1500"}});
            if (student % 3 != 0) expected << QString::number(student);
        }
        store::scan_all(etud, [&] {
            if (etud["ONO"].whole_number() % 3 == 0) etud.Delete();
        });
        scope.commit();
        etud.Index("TSX");
        QCOMPARE(walk(etud, "ONO"), expected);
        etud.Seek("=", {"20261001", "1500"});
        QCOMPARE(etud["ONO"].text(), "299");
    }

    void primary_order_is_the_first_index() {
        const Office office;
        auto database = store::OpenDatabase(office.file);
        auto etud = database.OpenRecordset("Etud");
        add(etud, {{"ONO", 2}, {"TARIH", "20261001"}, {"SAAT", "0900"}});
        add(etud, {{"ONO", 1}, {"TARIH", "20261002"}, {"SAAT", "0900"}});
        QCOMPARE(walk(etud, "ONO"), (QStringList{"1", "2"}));
        etud.Index("TSX");
        QCOMPARE(walk(etud, "ONO"), (QStringList{"2", "1"}));
    }
};

static const Registered<OrderTest> registered;
#include "order_test.moc"
