#include "backup.h"

#include "audit.h"
#include "platform/paths.h"
#include "rows.h"
#include "support/school.h"

#include <QProcess>

namespace {

const QString place = "d:\\yedek\\pazartesi";

// One payment of 1 as the office writes it: the cash row first, then payment and instalment together.
void post(store::Database& cash_book, store::Database& file, int second) {
    const QString saat = QTime(8, 0).addSecs(second).toString("HHmmss");
    auto cash = cash_book.OpenRecordset("Kasa");
    cash.AddNew();
    for (const auto& [field, value] :
         School::Fields{{"TARIH", "20261005"}, {"SAAT", saat}, {"ACK", "1250  AYŞE #2026"}, {"TUTAR", 1}, {"KOD", "1"}})
        cash[field] = value;
    cash.Update();
    store::WriteScope scope(file);
    auto payments = file.OpenRecordset("Tahsilat"), instalments = file.OpenRecordset("Odeme");
    payments.AddNew();
    for (const auto& [field, value] : School::Fields{{"ONO", 1250},
                                                     {"VADE", "20261001"},
                                                     {"TARIH", "20261005"},
                                                     {"SAAT", saat},
                                                     {"KSAAT", saat},
                                                     {"ODENEN", 1}})
        payments[field] = value;
    payments.Update();
    instalments.Edit();
    instalments["ODENEN"] = instalments["ODENEN"].number() + 1;
    instalments.Update();
    scope.commit();
}

}  // namespace

class BackupTest : public QObject {
    Q_OBJECT

private slots:
    void is_consistent_while_the_office_posts() {
        School school;
        school.student(1250).name("AYŞE").instalment("20261001", 100000);
        auto cash_book = store::OpenDatabase(school.reference_file()), file = store::OpenDatabase(school.term_file());
        QProcess tool;
        tool.start(KURVO_ARAC, {"yedekle", place});
        int posted = 0;
        do post(cash_book, file, posted++);
        while (!tool.waitForFinished(1));
        QCOMPARE(tool.exitCode(), 0);
        QCOMPARE(school.rows("Tahsilat", {"ONO"}).size(), posted);  // the office was not held up
        const auto found = audit::look_over(place + "\\");  // the moment may lie between a cash row and its payment
        for (const audit::Finding& one : found)
            QVERIFY2(found.size() == 1 && one.words.startsWith("kasaya giren 1, tahsilatların toplamı 0"),
                     qPrintable(one.place + one.words));
    }

    void what_stops_half_way_is_told() {
        School school;
        school.student(1250).name("AYŞE");
        backup::take(school.data_root(), place);
        school.drives.put("d/yedek/pazartesi/data/yer.txt", "x");
        school.drives.put("c/okul/data/yer.txt/dosya", "a folder in the place of the file");
        QVERIFY(refusal([&] { backup::put_back(place, school.data_root()); }).contains("geri yüklenmiş olabilir"));
        QByteArray bytes = school.drives.bytes("c/okul/data/2026ogr.mdb");
        bytes.replace(4096, 8192, QByteArray(8192, '\xAA'));
        school.drives.put("c/okul/data/2026ogr.mdb", bytes);
        QVERIFY(refusal([&] { backup::take(school.data_root(), "d:\\salı"); }).contains("bozuk"));
        QVERIFY(!QFile::exists(school.drives.path("d/salı")) && !QFile::exists(school.drives.path("d/salı.yarim")));
        QVERIFY(refusal([&] { backup::take(school.data_root(), {}); }).contains("verilmedi"));
    }

    void gives_back_what_was_there() {
        School school;
        school.student(1250).name("AYŞE");
        school.drives.put("c/okul/data/KasaTip.txt", "TL\r\n");
        school.drives.put("c/okul/foto/2026_1250.bmp", "BM");
        QCOMPARE(backup::take(school.data_root(), place).files, 6);
        QVERIFY(!paths::exists(place + ".yarim\\yedek.txt"));
        QVERIFY(refusal([&] { backup::take(school.data_root(), place); }).contains("boş değil"));
        QVERIFY(refusal([&] { backup::take(school.data_root(), "c:\\okul\\yedek"); }).contains("okulun klasörüne"));
        QVERIFY(refusal([&] { backup::taken_at("c:\\okul"); }).contains("yedek değil"));

        auto open_elsewhere = store::OpenDatabase(school.term_file());
        auto students = open_elsewhere.OpenRecordset("Ogrenci");
        school.student(1250).name("SONRA");
        school.student(1251).name("YENİ");
        school.add_term("2027");
        school.drives.put("c/okul/data/KasaTip.txt", "bozuk");
        school.drives.put("c/okul/data/kbase.mdb", "no database");
        school.drives.put("c/okul/data/kbase.mdb-journal", "of the damaged one");
        QFile::remove(school.drives.path("c/okul/foto/2026_1250.bmp"));
        QCOMPARE(backup::put_back(place, school.data_root()), QStringList("data\\2027ogr.mdb"));
        QCOMPARE(school.rows("Ogrenci", {"ONO", "ADSOY"}), QStringList("1250|AYŞE"));
        students.MoveFirst();  // an open workstation reads the file that was put back
        QCOMPARE(students["ADSOY"].text(), "AYŞE");
        QCOMPARE(school.drives.bytes("c/okul/data/KasaTip.txt"), QByteArray("TL\r\n"));
        QCOMPARE(school.drives.bytes("c/okul/foto/2026_1250.bmp"), QByteArray("BM"));
        QCOMPARE(school.rows("users", {"KOD"}), QStringList("AYLIN"));
        QCOMPARE(school.drives.bytes("c/okul/data/kbase.mdb.bozuk"), QByteArray("no database"));
        QVERIFY(!QFile::exists(school.drives.path("c/okul/data/yedek.txt")));
    }
};

static const Registered<BackupTest> registered;
#include "backup_test.moc"
