#include "school.h"

#include "platform/paths.h"
#include "platform/rich_text.h"
#include "rows.h"
#include "tool_tests.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList files_below(const Drives& drives) {
    QStringList names;
    for (const QString& folder : {u"c/okul/data"_s, u"c/qlm"_s})
        names += QDir(drives.path(folder)).entryList(QDir::Files);
    return names;
}

QString plain_of(const QString& file, const char* table, const QString& key, const QString& field) {
    for (const rows::Record& record : rows::all(file, table))
        if (record[u"KOD"_s].text() == key) return rich_text::plain(record[field].text());
    return u"no row"_s;
}

}  // namespace

void SchoolTest::makes_every_file_with_its_tables() {
    school::create(u"c:\\okul"_s, {u"2025"_s, u"2026"_s});
    QCOMPARE(files_below(*drives_), QStringList({u"2025ogr.mdb"_s, u"2026ogr.mdb"_s, u"Bilgi.mdb"_s, u"Dsys.mdb"_s,
                                                 u"kbase.mdb"_s, u"Psys.mdb"_s}));
    QCOMPARE(school::terms_of(school::default_root), QStringList({u"2025"_s, u"2026"_s}));
    store::Database term = store::OpenDatabase(rows::term);
    for (const char* table :
         {"Ogrenci", "Sinif", "Odeme", "Tahsilat", "Devam", "EtudDevam", "Dmazeret", "Emazeret", "Etud"})
        QVERIFY2(!term.OpenRecordset(table).has_rows(), table);
    QCOMPARE(term.OpenRecordset("Ogrenci").definition().fields.size(), 85U);
    QVERIFY(QDir(drives_->path(u"c/okul/foto"_s)).exists());
}

void SchoolTest::refuses_an_existing_file_and_makes_nothing() {
    drives_->put(u"c/okul/data/kbase.mdb"_s, "of somebody");
    const QString words = rows::refusal([] { school::create(school::default_root, {u"2026"_s}); });
    QVERIFY2(words.contains(u"c:\\okul\\data\\kbase.mdb"_s), qPrintable(words));
    QCOMPARE(files_below(*drives_), QStringList(u"kbase.mdb"_s));
    QCOMPARE(drives_->bytes(u"c/okul/data/kbase.mdb"_s), QByteArray("of somebody"));
}

void SchoolTest::takes_back_what_it_made_when_a_file_fails() {
    QDir().mkpath(drives_->path(u"c/okul/data/2026ogr.mdb/full"_s));
    QVERIFY(!rows::refusal([] { school::create(school::default_root, {u"2025"_s, u"2026"_s}); }).isEmpty());
    QCOMPARE(files_below(*drives_), QStringList());
}

void SchoolTest::adds_a_term_to_an_old_school_alone() {
    school::create(school::default_root, {u"2026"_s});
    school::set_user(school::default_root, u"AYLA"_s, u"1011"_s);
    const QByteArray users = rows::dump(u"c:\\okul\\data\\kbase.mdb"_s, u"users"_s);
    school::add_terms(school::default_root, {u"2027"_s});
    QCOMPARE(school::terms_of(school::default_root), QStringList({u"2026"_s, u"2027"_s}));
    QCOMPARE(rows::dump(u"c:\\okul\\data\\kbase.mdb"_s, u"users"_s), users);

    const QString words = rows::refusal([] { school::add_terms(school::default_root, {u"2028"_s, u"2026"_s}); });
    QVERIFY2(words.contains(u"2026ogr.mdb"_s), qPrintable(words));
    QVERIFY(!school::terms_of(school::default_root).contains(u"2028"_s));

    QFile::remove(drives_->path(u"c/okul/data/Dsys.mdb"_s));
    const QString missing = rows::refusal([] { school::add_terms(school::default_root, {u"2029"_s}); });
    QVERIFY2(missing.contains(u"Dsys.mdb"_s), qPrintable(missing));
}

void SchoolTest::a_second_school_keeps_the_running_programs() {
    school::create(school::default_root, {u"2026"_s});
    table_copy::load(school::programs_file, u"prg"_s, "KOD\nKasa\n", false);
    school::create(u"\\\\sunucu\\okul2\\"_s, {u"2026"_s});
    QCOMPARE(rows::dump(school::programs_file, u"prg"_s), QByteArray("KOD\r\nKasa\r\n"));
    QVERIFY(paths::exists(u"\\\\sunucu\\okul2\\data\\2026ogr.mdb"_s));
}

void SchoolTest::stamps_the_version_and_sets_users() {
    school::create(school::default_root, {u"2026"_s});
    QCOMPARE(school::version_of(school::default_root), u"21.1"_s);
    QCOMPARE(plain_of(u"c:\\okul\\data\\Dsys.mdb"_s, "SBtab", u"RMA"_s, u"SB1"_s), u"21.1"_s);
    const QString users = u"c:\\okul\\data\\kbase.mdb"_s;
    school::set_user(school::default_root, u"AYLA"_s, u"1011"_s);
    school::set_user(school::default_root, u"ÖMER"_s, u"0000"_s);
    school::set_user(school::default_root, u"AYLA"_s, u"0010"_s);
    QCOMPARE(rows::all(users, "users").size(), 2);
    QCOMPARE(plain_of(users, "users", u"AYLA"_s, u"DKOD"_s), u"0010"_s);
    QCOMPARE(plain_of(users, "users", u"ÖMER"_s, u"DKOD"_s), u"0000"_s);
}
