#include "office.h"
#include "store/folder_locks.h"
#include "support/run_all.h"

#include <QRandomGenerator>

#include <sqlite3.h>

namespace {

// Twelve bytes of a header and what an office's disk may hold under a name of ours.
QByteArray encrypted() {
    QByteArray bytes(8192, '\0');
    QRandomGenerator(1).generate(bytes.begin(), bytes.end());
    return bytes;
}

void run_sql(const QString& native, const char* sql) {
    sqlite3* connection = nullptr;
    QCOMPARE(sqlite3_open(native.toUtf8().constData(), &connection), SQLITE_OK);
    QCOMPARE(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(connection);
}

QStringList names_in(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

}  // namespace

class FileTest : public QObject {
    Q_OBJECT

private slots:
    void foreign_file_is_refused_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("word");

        QTest::newRow("empty") << QByteArray() << "boş";
        QTest::newRow("older engine") << QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + QByteArray(4072, 'x')
                                      << "kurvo-arac";
        QTest::newRow("its successor") << QByteArray("\0\1\0\0Standard ACE DB\0\2\0\0\0", 24) + QByteArray(4072, 'x')
                                       << "eski veritabanı";
        QTest::newRow("encrypted") << encrypted() << "tanınmıyor";
        QTest::newRow("short text") << QByteArray("merhaba") << "tanınmıyor";
        QTest::newRow("first bytes alone") << QByteArray("SQLite format 3\0", 16) << "2026ogr.mdb";
    }

    void foreign_file_is_refused() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, word);
        const Drives drives;
        drives.put("c/okul/2026ogr.mdb", bytes);
        const QString said = refusal([] { store::OpenDatabase("c:\\okul\\2026ogr.mdb"); });
        QVERIFY2(said.contains(word) && said.contains("c:\\okul\\2026ogr.mdb"), qPrintable(said));
        QCOMPARE(drives.bytes("c/okul/2026ogr.mdb"), bytes);
    }

    void file_of_another_program_is_refused() {
        const Office office;
        const QString foreign = office.drives.path("c/okul/tarayici.mdb");
        run_sql(foreign, "CREATE TABLE Ogrenci (ONO)");
        QVERIFY(refusal([] { store::OpenDatabase("c:\\okul\\tarayici.mdb"); }).contains("başka bir program"));
        run_sql(office.drives.path("c/okul/2026ogr.mdb"), "PRAGMA user_version=99");
        QVERIFY(refusal([&] { store::OpenDatabase(office.file); }).contains("daha yeni"));
        QVERIFY(refusal([] { store::OpenDatabase("c:\\okul\\yok.mdb"); }).contains("bulunamadı: c:\\okul\\yok.mdb"));
        QVERIFY(refusal([] { store::OpenDatabase("c:\\okul"); }).contains("klasör"));
    }

    void cut_file_is_refused() {
        const Office office;
        QFile file(office.drives.path("c/okul/2026ogr.mdb"));
        QVERIFY(file.resize(file.size() / 2));
        const QString said = refusal([&] {
            auto database = store::OpenDatabase(office.file);
            database.OpenRecordset("Etud").RecordCount();
        });
        QVERIFY2(said.contains("bozuk: c:\\okul\\2026ogr.mdb"), qPrintable(said));
    }

    void new_file_is_complete_or_not_there() {
        const Office office;
        const QString folder = office.drives.path("c/okul");
        const QByteArray before = office.drives.bytes("c/okul/2026ogr.mdb");
        const auto& tables = store::catalogue(store::FileKind::users);
        QVERIFY(refusal([&] { store::create_file(office.file, tables); }).contains("zaten var"));
        QVERIFY(refusal([&] { store::CreateDatabase(office.file); }).contains("zaten var"));
        QCOMPARE(office.drives.bytes("c/okul/2026ogr.mdb"), before);

        store::TableDef twice = tables.front();
        twice.fields.push_back(twice.fields.front());
        QVERIFY(!refusal([&] { store::create_file("c:\\okul\\kbase.mdb", {tables.front(), twice}); }).isEmpty());
        QVERIFY(!refusal([&] { store::create_file("c:\\yok\\kbase.mdb", tables); }).isEmpty());
        QCOMPARE(names_in(folder), QStringList{"2026ogr.mdb"});
    }

    void new_file_is_shared_as_its_folder() {
        const Office office;
        const QString folder = office.drives.path("c/ortak");
        QVERIFY(QDir().mkpath(folder));
        const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::WriteGroup |
                         QFile::ExeGroup;
        QVERIFY(QFile::setPermissions(folder, all));
        store::create_file("c:\\ortak\\Bilgi.mdb", store::catalogue(store::FileKind::reference));
        const auto rights = QFile::permissions(folder + "/Bilgi.mdb");
        QVERIFY(rights.testFlag(QFile::WriteGroup) && !rights.testFlag(QFile::ReadOther));
        QVERIFY(!rights.testFlag(QFile::ExeGroup));
    }

    void closing_releases_the_file() {
        const Office office;
        const QString next = office.drives.path("c/okul/yeni.mdb"), current = office.drives.path("c/okul/2026ogr.mdb");
        store::create_file("c:\\okul\\yeni.mdb", store::catalogue(store::FileKind::term));
        {
            auto database = store::OpenDatabase("c:\\okul\\yeni.mdb");
            auto odeme = database.OpenRecordset("Odeme");
            add_instalment(odeme, 7, "20261001", 1);
        }
        auto database = store::OpenDatabase(office.file);
        QCOMPARE(database.OpenRecordset("Odeme").RecordCount(), 0);
        database.Close();
#ifdef Q_OS_LINUX
        for (const QFileInfo& open : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System))
            QVERIFY(!open.symLinkTarget().endsWith(".mdb"));
#endif
        QVERIFY(QFile::remove(current));
        QVERIFY(QFile::rename(next, current));
        database = store::OpenDatabase(office.file);
        QCOMPARE(database.OpenRecordset("Odeme").RecordCount(), 1);
    }

    void scratch_file_takes_its_table() {
        const Office office;
        const QString scratch = QStringLiteral("c:\\okul\\siletud.mdb");
        {
            auto database = store::CreateDatabase(scratch);
            database.CreateTable(store::scratch_table());
            auto kayit = database.OpenRecordset("Kayit");
            const auto book = [&](const char* start, int teacher) {
                add(kayit, {{"SAAT", start}, {"BITSAAT", "1000"}, {"KOD", "01"}, {"SICIL", teacher}, {"SAY", 1}});
            };
            book("0930", 2);
            book("0900", 12);
            book("0900", 3);
            QVERIFY(code_of([&] { book("0900", 12); }) == store::Errc::duplicate_key);
            QCOMPARE(walk(kayit, "SICIL"), (QStringList{"3", "12", "2"}));
        }
        QCOMPARE(store::OpenDatabase(scratch).OpenRecordset("Kayit").RecordCount(), 3);
        QCOMPARE(names_in(office.drives.path("c/okul")), (QStringList{"2026ogr.mdb", "siletud.mdb"}));
    }

    void locks_of_the_folder_are_tested() {
        const Office office;
        const QString folder = office.drives.path("c/okul");
        QVERIFY(store::locks_hold(folder));
        QCOMPARE(names_in(folder), QStringList{"2026ogr.mdb"});
        QVERIFY(store::locks_hold(office.drives.path("c/yok")));  // nothing can be written there
    }
};

static const Registered<FileTest> registered;
#include "file_test.moc"
