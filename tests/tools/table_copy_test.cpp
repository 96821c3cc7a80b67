#include "table_copy.h"

#include "rows.h"
#include "school.h"
#include "tool_tests.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray lessons =
    "KOD,TANIM\r\n"
    "MT,Matematik\r\n"
    "CG,\"Coğrafya, \"\"seçmeli\"\"\"\r\n"
    "TR,\"\"\r\n"
    "FZ,\r\n"
    "ZZ,\"iki\r\nsatır\"\r\n";

int load(const QString& table, const QByteArray& text, bool empty_first = false) {
    return table_copy::load(rows::reference, table, text, empty_first);
}

}  // namespace

void TableCopyTest::initTestCase() {
    drives_.emplace();
    school::create(school::default_root, {u"2026"_s});
}

void TableCopyTest::init() {
    for (const char* header : {"Ders KOD", "Ogretmen SICIL", "Belgeno SERI"})
        load(QString::fromLatin1(header).section(u' ', 0, 0), QByteArray(header).split(' ').last() + "\n", true);
    for (const QString& table : {u"Etud"_s, u"Odeme"_s}) table_copy::load(rows::term, table, "ONO\n", true);
}

void TableCopyTest::dumps_in_the_order_asked_for() {
    table_copy::load(rows::term, u"Etud"_s,
                     "ONO,TARIH,SAAT,KONU\n2,20261001,0900,a\n1,20261003,0900,b\n1,20261002,1000,c\n", false);
    const auto topics = [](const QString& index) {
        QString result;
        const QList<QByteArray> lines = rows::dump(rows::term, u"Etud"_s, index).trimmed().split('\n');
        for (const QByteArray& line : lines.mid(1)) result += QString::fromUtf8(line.trimmed()).section(u',', -1);
        return result;
    };
    QCOMPARE(topics({}), u"cba"_s);
    QCOMPARE(topics(u"OTSX"_s), u"cba"_s);
    QCOMPARE(topics(u"TSX"_s), u"acb"_s);
    QVERIFY(!rows::refusal([] { rows::dump(rows::term, u"Etud"_s, u"YOKX"_s); }).isEmpty());
}

void TableCopyTest::what_is_dumped_loads_as_the_same() {
    QCOMPARE(load(u"Ders"_s, lessons), 5);
    // The order of the codes: CG, FZ, MT, TR, ZZ.
    const QByteArray expected =
        "KOD,TANIM\r\n"
        "CG,\"Coğrafya, \"\"seçmeli\"\"\"\r\n"
        "FZ,\r\n"
        "MT,Matematik\r\n"
        "TR,\"\"\r\n"
        "ZZ,\"iki\r\nsatır\"\r\n";
    QCOMPARE(rows::dump(rows::reference, u"Ders"_s), expected);
    load(u"Ders"_s, expected, true);
    QCOMPARE(rows::dump(rows::reference, u"Ders"_s), expected);
}

void TableCopyTest::numbers_keep_every_digit_data() {
    QTest::addColumn<QByteArray>("number");
    for (const char* number : {"0", "-1", "1250", "0.1", "1234567.89", "-0.000001", "123456789012345683968",
                               "0.30000000000000004", "9007199254740993"})
        QTest::newRow(number) << QByteArray(number);
}

void TableCopyTest::numbers_keep_every_digit() {
    QFETCH(QByteArray, number);
    const QByteArray text = "ONO,VADE,TUTAR,ODENEN,ACK,ODSEK,CYER\r\n1,20261001," + number + ",,,,\r\n";
    table_copy::load(rows::term, u"Odeme"_s, text, false);
    const QByteArray dumped = rows::dump(rows::term, u"Odeme"_s);
    table_copy::load(rows::term, u"Odeme"_s, dumped, true);
    QCOMPARE(rows::dump(rows::term, u"Odeme"_s), dumped);
    QCOMPARE(rows::all(rows::term, "Odeme").first()[u"TUTAR"_s].number(), number.toDouble());
    // Nothing but the digits that are needed, where a double holds the number exactly.
    if (number != "9007199254740993") QVERIFY2(dumped.contains("," + number + ","), dumped.constData());
}

void TableCopyTest::missing_columns_are_null() {
    load(u"Belgeno"_s, "SERI\nM\n");
    const QList<rows::Record> series = rows::all(rows::reference, "Belgeno");
    QCOMPARE(series.size(), 1);
    QVERIFY(series.first()[u"SNO"_s].is_null());
}

void TableCopyTest::refuses_whole_and_names_line_and_field_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("named");
    const auto row = [](const char* name, const QByteArray& text, const QStringList& named) {
        QTest::newRow(name) << text << named;
    };
    row("unknown field", "SICIL,ADI\n1,x\n", {u"1. satır"_s, u"ADI"_s});
    row("field twice", "SICIL,ADSOY,SICIL\n1,x,2\n", {u"1. satır"_s, u"SICIL"_s});
    row("no header", "", {u"1. satır"_s});
    row("letters for a number", "SICIL,ADSOY\n1,x\nbir,y\n", {u"3. satır"_s, u"SICIL"_s, u"bir"_s});
    row("empty text for a number", "SICIL,ADSOY\n\"\",y\n", {u"2. satır"_s, u"SICIL"_s});
    row("blank before a number", "SICIL,ADSOY\n 7,y\n", {u"2. satır"_s, u"SICIL"_s});
    row("decimals for a whole number", "SICIL,ADSOY\n1.5,y\n", {u"2. satır"_s, u"SICIL"_s});
    row("too large", "SICIL,ADSOY\n2147483648,y\n", {u"2. satır"_s, u"SICIL"_s});
    row("one field short", "SICIL,ADSOY\n1,x\n2\n", {u"3. satır"_s, u"ADSOY"_s});
    row("one field too many", "SICIL,ADSOY\n1,x,y\n", {u"2. satır"_s, u"y"_s});
    row("key twice, behind a text of two lines", "SICIL,ADSOY\n1,\"x\ny\"\n5,z\n1,y\n", {u"5. satır"_s, u"SICIL"_s});
    row("key that is there", "SICIL,ADSOY\n8,x\n9,y\n", {u"3. satır"_s, u"SICIL"_s});
}

void TableCopyTest::refuses_whole_and_names_line_and_field() {
    QFETCH(QByteArray, text);
    QFETCH(QStringList, named);
    load(u"Ogretmen"_s, "SICIL,ADSOY\n9,ÖMER IŞIK\n");
    const QByteArray before = rows::dump(rows::reference, u"Ogretmen"_s);
    const QString words = rows::refusal([&] { load(u"Ogretmen"_s, text); });
    for (const QString& name : named) QVERIFY2(words.contains(name), qPrintable(words));
    QCOMPARE(rows::dump(rows::reference, u"Ogretmen"_s), before);
}

void TableCopyTest::empties_first_when_asked() {
    load(u"Ogretmen"_s, "SICIL,ADSOY\n9,a\n10,b\n");
    const QByteArray before = rows::dump(rows::reference, u"Ogretmen"_s);
    QVERIFY(!rows::refusal([] { load(u"Ogretmen"_s, "SICIL\n1\nx\n", true); }).isEmpty());
    QCOMPARE(rows::dump(rows::reference, u"Ogretmen"_s), before);
    load(u"Ogretmen"_s, "SICIL,ADSOY\n9,c\n", true);
    QCOMPARE(rows::dump(rows::reference, u"Ogretmen"_s), QByteArray("SICIL,ADSOY\r\n9,c\r\n"));
}

void TableCopyTest::lists_tables_with_fields_and_indexes() {
    const QString text = table_copy::overview(rows::term);
    for (const QString& part : {u"Ogrenci: 0 kayıt"_s, u"dizin OVTX: ONO, VADE, TARIH, SAAT"_s,
                                u"dizin TSX: TARIH, SAAT (yinelenebilir)"_s, u"ADSOY"_s})
        QVERIFY2(text.contains(part), qPrintable(part));
}
