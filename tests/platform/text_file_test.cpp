#include "platform/text_file.h"

#include "base_tests.h"
#include "platform/code_page.h"
#include "support/drives.h"

#include <QTest>

#include <functional>

namespace {

const QString name = QStringLiteral("c:\\okul\\data\\liste.txt");
const QString below = QStringLiteral("c/okul/data/liste.txt");

QString refusal(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::runtime_error& error) {
        return QString::fromUtf8(error.what());
    }
    return QStringLiteral("nothing was refused");
}

}  // namespace

void TextFileTest::every_byte_comes_back() {
    // Code page 1254 leaves these bytes without a letter.
    const QByteArray unassigned("\x81\x8D\x8E\x8F\x90\x9D\x9E", 7);
    for (int code = 0; code < 256; ++code) {
        const QByteArray byte(1, static_cast<char>(code));
        const QString letter = code_page::decode(byte);
        QCOMPARE(letter.size(), 1);
        if (unassigned.contains(byte[0])) {
            QCOMPARE(letter[0], QChar(QChar::ReplacementCharacter));
            QCOMPARE(code_page::code_of(letter[0]), -1);
        } else {
            QCOMPARE(code_page::encode(letter), byte);
        }
    }
    QCOMPARE(code_page::decode("\xD0\xF0\xDC\xFC\xDE\xFE\xDD\xFD\xD6\xF6\xC7\xE7\x80\x9F"), QString("ĞğÜüŞşİıÖöÇç€Ÿ"));
}

void TextFileTest::letter_without_a_place_is_refused() {
    QVERIFY(refusal([] { code_page::encode(u"Ayşe Ωmega Ж"); }).contains("\"Ω\""));
    QVERIFY(refusal([] { code_page::encode(u"not 😀"); }).contains("U+1F600"));
    QVERIFY(refusal([] { code_page::encode(u"\x81"); }).contains("U+0081"));
}

void TextFileTest::lines_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("nothing") << QByteArray() << QStringList();
    QTest::newRow("the usual end") << QByteArray("TL\r\nUSD\r\n") << QStringList({"TL", "USD"});
    QTest::newRow("no end at the last") << QByteArray("TL\r\nUSD") << QStringList({"TL", "USD"});
    QTest::newRow("every kind of end") << QByteArray("a\nb\rc\r\n\r\nd\n\r")
                                       << QStringList({"a", "b", "c", "", "d", ""});
    QTest::newRow("blanks stay") << QByteArray(" a, \"b\" \r\n \r\n") << QStringList({" a, \"b\" ", " "});
    QTest::newRow("Turkish letters") << QByteArray("\xDEi\xFEli \xDDO\r\n") << QStringList({"Şişli İO"});
}

void TextFileTest::lines() {
    const Drives drives;
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    drives.put(below, bytes);
    QCOMPARE(text_file::read_lines(name), lines);
    text_file::write_lines(name, lines);
    QCOMPARE(drives.bytes(below), code_page::encode(lines.isEmpty() ? QString() : lines.join("\r\n") + "\r\n"));
    QCOMPARE(text_file::read_lines(name), lines);
}

void TextFileTest::items_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("labels and numbers") << QByteArray("\"Senet Yatay\",500,\"Senet Dikey\",200\r\n")
                                        << QStringList({"Senet Yatay", "500", "Senet Dikey", "200"});
    QTest::newRow("line breaks do not matter")
        << QByteArray("1\r\n2,3\n4\r5") << QStringList({"1", "2", "3", "4", "5"});
    QTest::newRow("commas in a text") << QByteArray("\"a, b\", c ,\"\",\r\n") << QStringList({"a, b", "c", "", ""});
    QTest::newRow("empty places") << QByteArray(",1,,2") << QStringList({"", "1", "", "2"});
    QTest::newRow("blanks in quotes count") << QByteArray(" \" a \" , b c ") << QStringList({" a ", "b c"});
    QTest::newRow("empty lines are empty items")
        << QByteArray("1\r\n\r\n  \r\n2\r\n") << QStringList({"1", "", "", "2"});
    QTest::newRow("quote inside a bare value") << QByteArray("5\" boru,2") << QStringList({"5\" boru", "2"});
    QTest::newRow("quote never closed") << QByteArray("\"a,b\r\n3") << QStringList({"a,b", "3"});
    QTest::newRow("behind the closing quote") << QByteArray("\"a\" x,2") << QStringList({"a", "2"});
}

void TextFileTest::items() {
    const Drives drives;
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, items);
    drives.put(below, bytes);
    QCOMPARE(text_file::read_items(name), items);
}

void TextFileTest::quoted_item_comes_back() {
    const Drives drives;
    drives.put(below, {});
    for (const QString text : {"11", "", " ", "a \"b\", c", "\"", ",,"}) {
        text_file::write_lines(name, {text_file::quoted(text) + ",7"});
        QCOMPARE(text_file::read_items(name), QStringList({text, "7"}));
    }
}

void TextFileTest::failure_names_the_file_as_told() {
    const Drives drives;
    const QString missing = "c:\\okul\\data\\yok.txt";
    for (const QString& said :
         {refusal([&] { text_file::read_lines(missing); }), refusal([&] { text_file::write_lines(missing, {"a"}); })}) {
        QVERIFY2(said.contains(missing), qPrintable(said));
        QVERIFY2(!said.contains(drives.path({})), qPrintable(said));
    }
}

void TextFileTest::failed_write_leaves_the_old_file() {
    const Drives drives;
    drives.put(below, "eski\r\n");
    const QString said = refusal([] { text_file::write_lines(name, {"yeni", "Ж"}); });
    QVERIFY2(said.contains(name) && said.contains("\"Ж\""), qPrintable(said));
    QCOMPARE(drives.bytes(below), QByteArray("eski\r\n"));

    // Written beside and renamed: whoever has the old file open goes on reading the old one, and nothing is left over.
    QFile open(drives.path(below));
    QVERIFY(open.open(QIODevice::ReadOnly));
    text_file::write_lines(name, {"yeni"});
    QCOMPARE(open.readAll(), QByteArray("eski\r\n"));
    QCOMPARE(drives.bytes(below), QByteArray("yeni\r\n"));
    QCOMPARE(QDir(drives.path("c/okul/data")).entryList(QDir::Files | QDir::Hidden), QStringList("liste.txt"));
}
