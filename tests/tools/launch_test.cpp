#include "launch.h"

#include "rows.h"
#include "school.h"
#include "tool_tests.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

launch::HandOver ordinary() {
    launch::HandOver values;
    values.version = u"21.1"_s;
    values.root = u"c:\\okul\\"_s;
    values.school = u"ÖZEL IŞIK, ÇAĞ DERSHANESİ"_s;
    values.term = u"2026"_s;
    values.hide_archived = u"0"_s;
    values.rights = u"110011"_s;
    values.user = u"ŞULE"_s;
    values.photos = u"c:\\okul\\foto\\"_s;
    values.remote_host = u"10.0.0.5"_s;
    values.remote_database = u"dizin"_s;
    values.remote_user = u"okul"_s;
    values.remote_password = u"p,w"_s;
    values.remote_key = u"IZM01"_s;
    return values;
}

}  // namespace

void LaunchTest::writes_the_eighteen_items() {
    launch::prepare(ordinary());
    // Ö = D6, I = 49, Ş = DE, Ç = C7, Ğ = D0, İ = DD in the code page.
    const QByteArray expected =
        "\"21.1\"\r\n\"\"\r\n\"c:\\okul\\\"\r\n\"\xd6ZEL I\xdeIK, \xc7"
        "A\xd0 DERSHANES\xdd\"\r\n\"\"\r\n\"2026\"\r\n"
        "\"\"\r\n\"0\"\r\n\"\"\r\n\"110011\"\r\n\"\xdeULE\"\r\n\"\"\r\n\"c:\\okul\\foto\\\"\r\n\"10.0.0.5\"\r\n"
        "\"dizin\"\r\n\"okul\"\r\n\"p,w\"\r\n\"IZM01\"\r\n";
    QCOMPARE(drives_->bytes(u"c/qlm/log.txt"_s), expected);
}

void LaunchTest::notes_the_running_program_once() {
    launch::prepare(ordinary());
    table_copy::load(school::programs_file, u"prg"_s, "KOD\nKasa\n", false);
    launch::prepare(ordinary());
    QCOMPARE(rows::dump(school::programs_file, u"prg"_s), QByteArray("KOD\r\nKasa\r\nKurvo\r\n"));
}

void LaunchTest::refuses_what_the_file_cannot_hold_data() {
    QTest::addColumn<QString>("school_name");
    QTest::newRow("double quote") << u"\"IŞIK\" DERSHANESİ"_s;
    QTest::newRow("line end") << u"IŞIK\nDERSHANESİ"_s;
    QTest::newRow("no such letter in the code page") << u"ЛИЦЕЙ"_s;
}

void LaunchTest::refuses_what_the_file_cannot_hold() {
    QFETCH(QString, school_name);
    launch::HandOver values = ordinary();
    values.school = school_name;
    QVERIFY(!rows::refusal([&] { launch::prepare(values); }).isEmpty());
    QVERIFY(!QFile::exists(drives_->path(u"c/qlm/log.txt"_s)));
}
