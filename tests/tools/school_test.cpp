#include "school.h"

#include "platform/paths.h"
#include "platform/rich_text.h"
#include "rows.h"
#include "support/drives.h"

namespace {

const QString users = QStringLiteral("c:\\okul\\data\\kbase.mdb");

QStringList files_below(const Drives& drives) {
    return QDir(drives.path("c/okul/data")).entryList(QDir::Files) + QDir(drives.path("c/qlm")).entryList(QDir::Files);
}

}  // namespace

class SchoolTest : public QObject {
    Q_OBJECT

private slots:
    void makes_every_file_with_its_tables() {
        const Drives drives;
        school::create("c:\\okul", {"2025", "2026"});
        QCOMPARE(files_below(drives),
                 QStringList({"2025ogr.mdb", "2026ogr.mdb", "Bilgi.mdb", "Dsys.mdb", "kbase.mdb", "Psys.mdb"}));
        QCOMPARE(school::terms_of(rows::root), QStringList({"2025", "2026"}));
        const QString tables = table_copy::overview(rows::term);
        for (const char* part : {"Ogrenci: 0 kayıt", "Sinif: 0", "Odeme: 0", "Tahsilat: 0", "Devam: 0", "EtudDevam: 0",
                                 "Dmazeret: 0", "Emazeret: 0", "Etud: 0", "ADSOY", "dizin OVTX: ONO, VADE, TARIH, SAAT",
                                 "dizin TSX: TARIH, SAAT (yinelenebilir)"})
            QVERIFY2(tables.contains(part), part);
        QVERIFY(QDir(drives.path("c/okul/foto")).exists());

        QCOMPARE(school::version_of(rows::root), "21.1");
        for (const auto& [user, options] : {std::pair("AYLA", "1011"), {"ÖMER", "0000"}, {"AYLA", "0010"}})
            school::set_user(rows::root, user, options);
        QStringList stored;
        for (const rows::Record& user : rows::all(users, "users"))
            stored += user["KOD"].text() + '|' + rich_text::plain(user["DKOD"].text());
        QCOMPARE(stored, QStringList({"AYLA|0010", "ÖMER|0000"}));
    }

    void leaves_nothing_behind_when_it_fails() {
        const Drives drives;
        drives.put("c/okul/data/kbase.mdb", "of somebody");
        const QString words = refusal([] { school::create(rows::root, {"2026"}); });
        QVERIFY2(words.contains(users), qPrintable(words));
        QCOMPARE(files_below(drives), QStringList("kbase.mdb"));
        QCOMPARE(drives.bytes("c/okul/data/kbase.mdb"), QByteArray("of somebody"));
        QFile::remove(drives.path("c/okul/data/kbase.mdb"));
        QDir().mkpath(drives.path("c/okul/data/2026ogr.mdb/full"));
        QVERIFY(!refusal([] { school::create(rows::root, {"2025", "2026"}); }).isEmpty());
        QCOMPARE(files_below(drives), QStringList());
    }

    void adds_to_an_old_school() {
        const Drives drives;
        school::create(rows::root, {"2026"});
        school::set_user(rows::root, "AYLA", "1011");
        table_copy::load(school::programs_file, "prg", "KOD\nKasa\n", false);
        const QByteArray before = rows::dump(users, "users");
        school::add_terms(rows::root, {"2027"});
        QCOMPARE(school::terms_of(rows::root), QStringList({"2026", "2027"}));
        QCOMPARE(rows::dump(users, "users"), before);

        const QString words = refusal([] { school::add_terms(rows::root, {"2028", "2026"}); });
        QVERIFY2(words.contains("2026ogr.mdb"), qPrintable(words));
        QVERIFY(!school::terms_of(rows::root).contains("2028"));
        QFile::remove(drives.path("c/okul/data/Dsys.mdb"));
        const QString missing = refusal([] { school::add_terms(rows::root, {"2029"}); });
        QVERIFY2(missing.contains("Dsys.mdb"), qPrintable(missing));

        // A second school on another machine keeps the running programs of this one.
        school::create("\\\\sunucu\\okul2\\", {"2026"});
        QCOMPARE(rows::dump(school::programs_file, "prg"), QByteArray("KOD\r\nKasa\r\n"));
        QVERIFY(paths::exists("\\\\sunucu\\okul2\\data\\2026ogr.mdb"));
    }
};

static const Registered<SchoolTest> registered;
#include "school_test.moc"
