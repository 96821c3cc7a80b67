#include "office.h"
#include "store/folder_locks.h"
#include "support/run_all.h"

class FileTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        if (test_engine::is_server()) QSKIP("about files that hold the tables themselves");
    }

    void foreign_or_damaged_file_is_refused() {
        const Office office;
        const QByteArray good = office.drives.bytes("c/okul/2026ogr.mdb");
        const std::pair<QByteArray, QString> files[] = {
            {QByteArray(), "boş"},
            {QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + QByteArray(4072, 'x'), "kurvo-arac"},
            {QByteArray(8192, 'x'), "tanınmıyor"},
            {good.first(good.size() / 2), "bozuk"},
            {QByteArray(good).replace(68, 4, "tara"), "başka bir program"},  // whose file it is
            {QByteArray(good).replace(60, 4, QByteArray("\0\0\0\x63", 4)), "daha yeni"}};
        for (const auto& [bytes, word] : files) {
            office.drives.put("c/okul/x.mdb", bytes);
            const QString said =
                refusal([] { store::OpenDatabase("c:\\okul\\x.mdb").OpenRecordset("Etud").RecordCount(); });
            QVERIFY2(said.contains(word) && said.contains("c:\\okul\\x.mdb"), qPrintable(said));
            QCOMPARE(office.drives.bytes("c/okul/x.mdb"), bytes);
        }
        QVERIFY(refusal([] { store::OpenDatabase("c:\\okul\\yok.mdb"); }).contains("bulunamadı: c:\\okul\\yok.mdb"));
    }

    void folder_holds_complete_files_alone() {
        const Office office;
        const auto& tables = store::catalogue(store::FileKind::users);
        QVERIFY(refusal([&] { store::create_file(office.file, tables); }).contains("zaten var"));
        QVERIFY(!refusal([&] { store::create_file("c:\\okul\\k.mdb", {tables[0], tables[0]}); }).isEmpty());
        QVERIFY(store::locks_hold(office.drives.path("c/okul")));
        QCOMPARE(QDir(office.drives.path("c/okul")).entryList(QDir::Files | QDir::Hidden), QStringList("2026ogr.mdb"));
    }
};

static const Registered<FileTest> registered;
#include "file_test.moc"
