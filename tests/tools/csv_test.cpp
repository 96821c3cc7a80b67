#include "csv.h"

#include "rows.h"
#include "tool_tests.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Fields of all rows for the eye: Null as ∅, rows separated by "|", fields by "/".
QString shown(const std::vector<csv::Row>& rows) {
    QStringList lines;
    for (const csv::Row& row : rows) {
        QStringList fields;
        for (const csv::Field& field : row) fields.append(field.text.value_or(u"∅"_s));
        lines.append(fields.join(u'/'));
    }
    return lines.join(u'|');
}

}  // namespace

void CsvTest::reads_fields_as_written_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QByteArray& text, const QString& expected) {
        QTest::newRow(name) << text << expected;
    };
    row("null and empty", "A,B\r\n,\"\"\r\n", u"A/B|∅/"_s);
    row("last line without end", "A\nx", u"A|x"_s);
    row("blanks belong to the field", " x , \n", u" x / "_s);
    row("comma, quotes and line ends inside", "\"a,b\",\"say \"\"ne\"\"\",\"1\r\n2\n3\"\n",
        u"a,b/say \"ne\"/1\r\n2\n3"_s);
    row("null at the end of a line", "a,\n,b\n", u"a/∅|∅/b"_s);
    row("a lone null is a row", "A\n\nx\n", u"A|∅|x"_s);
    row("turkish letters", "ğüşİıöç\n", u"ğüşİıöç"_s);
    row("byte order mark",
        "\xef\xbb\xbf"
        "A\n",
        u"A"_s);
    row("nothing", "", u""_s);
}

void CsvTest::reads_fields_as_written() {
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    QCOMPARE(shown(csv::read(text)), expected);
}

void CsvTest::names_the_line_of_what_it_refuses_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quote in a bare field") << QByteArray("A\nx\"y\n") << u"2. satır"_s;
    QTest::newRow("text behind a quote") << QByteArray("A\n\"1\n2\"x\n") << u"3. satır"_s;
    QTest::newRow("quote that never ends") << QByteArray("A\nb\n\"c\nd\n") << u"3. satır"_s;
    QTest::newRow("lone carriage return") << QByteArray("A\rB\n") << u"1. satır"_s;
    QTest::newRow("no UTF-8") << QByteArray("A\nb\n\xfe\n") << u"3. satır"_s;
    QTest::newRow("letter cut at the end") << QByteArray("A\n\xc4") << u"2. satır"_s;
}

void CsvTest::names_the_line_of_what_it_refuses() {
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const QString words = rows::refusal([&] { csv::read(text); });
    QVERIFY2(words.startsWith(expected), qPrintable(words));
}

void CsvTest::quotes_only_what_needs_it() {
    QCOMPARE(csv::written(std::nullopt), u""_s);
    QCOMPARE(csv::written(u""_s), u"\"\""_s);
    QCOMPARE(csv::written(u" "_s), u" "_s);
    QCOMPARE(csv::written(u"İş; \\par"_s), u"İş; \\par"_s);
    QCOMPARE(csv::written(u"a,b"_s), u"\"a,b\""_s);
    QCOMPARE(csv::written(u"\""_s), u"\"\"\"\""_s);
    QCOMPARE(csv::written(u"\r"_s), u"\"\r\""_s);
}
