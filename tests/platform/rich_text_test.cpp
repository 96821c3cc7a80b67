#include "platform/rich_text.h"

#include "base_tests.h"

#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>

#include <random>

namespace {

const QString old_box = QStringLiteral(
    "{\\rtf1\\ansi\\ansicpg1254\\deff0\\deflang1055{\\fonttbl{\\f0\\fnil\\fcharset162{\\*\\fname Arial;}Arial TUR;}"
    "{\\f1\\fswiss\\fcharset0 Verdana;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
    "\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs17 \\'dei\\'feli \\b \\'d6\\'f0renci\\b0  no:\\tab 12\\par\r\n"
    "\\pard\\qc\\cf1\\f1\\fs24\\i ikinci\\i0\\cf0\\par\r\n}\r\n");

const QString word = QStringLiteral(
    "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\deff31507{\\fonttbl{\\f0\\fbidi \\froman\\fcharset0\\fprq2"
    "{\\*\\panose 02020603050405020304}Times New Roman;}{\\f39\\fbidi \\fswiss\\fcharset162\\fprq2 Calibri;}}"
    "{\\colortbl;\\red0\\green0\\blue0;}{\\*\\defchp \\f39}{\\stylesheet{\\ql \\snext0 Normal;}}{\\info{\\title "
    "Ba\\u351?l}"
    "{\\author X}}{\\*\\generator Word;}{\\header \\pard bas\\par}\\pard\\plain \\ltrpar\\ql {\\rtlch \\ltrch\\f39 "
    "\\u214\\'d6denecek: \\u351\\'fe}{\\field{\\*\\fldinst {HYPERLINK \"x\"}}{\\fldrslt {\\f39\\ul ba\\'f0}}}"
    "{\\*\\shppict{\\pict\\pngblip 8950}}{\\nonshppict{\\pict 00ff}}\\par {\\f0 \\'fe\\u8364\\'80}\\line alt\\cell "
    "b\\row }");

const QString office = QStringLiteral(
    "{\\rtf1\\ansi\\deff3\\adeflang1025\n{\\fonttbl{\\f3\\froman\\fprq2\\fcharset0 Liberation Serif;}}\n"
    "{\\*\\listtable{\\list x}}{\\pntext\\f3 1.\\tab}\\pard\\plain {\\u304\\'49\\u287\\'67\\u55357\\'3f\\u56832\\'3f}"
    "\\u8211\\endash {\\v gizli}\\u-4051?{\\uc2\\u351 st}{\\uc0\\u305}\\par \\par son}");

struct Run {
    QString text, look;
    bool operator==(const Run&) const = default;
};

QString look_of(const QTextCharFormat& format) {
    QString look = format.fontFamilies().toStringList().value(0);
    if (format.fontPointSize() > 0) look += ' ' + QString::number(format.fontPointSize());
    if (format.foreground().style() != Qt::NoBrush) look += ' ' + format.foreground().color().name();
    if (format.fontWeight() > QFont::Normal) look += " bold";
    if (format.fontItalic()) look += " italic";
    if (format.fontUnderline()) look += " underline";
    if (format.fontStrikeOut()) look += " strike";
    return look.trimmed();
}

// Alignment, then each run with its look: what a clerk sees.
QStringList described(const QTextDocument& document) {
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const Qt::Alignment side = block.blockFormat().alignment();
        lines += side & Qt::AlignRight     ? "right:"
                 : side & Qt::AlignHCenter ? "center:"
                 : side & Qt::AlignJustify ? "justify:"
                                           : "left:";
        for (auto it = block.begin(); !it.atEnd(); ++it)
            lines += it.fragment().text() + '|' + look_of(it.fragment().charFormat());
    }
    return lines;
}

}  // namespace

void RichTextTest::plain_text_of_writers_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("no rich text") << "Ayşe {\\b}"
                                  << "Ayşe {\\b}";
    QTest::newRow("line ends of a plain value") << "a\r\nb\rc\n"
                                                << "a\nb\nc\n";
    QTest::newRow("text box of old") << old_box << "Şişli Öğrenci no:\t12\nikinci";
    QTest::newRow("word processor") << word << "Ödenecek: şbağ\nþ€\nalt\tb";
    QTest::newRow("free office") << office << QString("1.\tİğ😀–") + QChar(0xF02D) + "şı\n\nson";
    QTest::newRow("nothing") << "{\\rtf1}"
                             << "";
    QTest::newRow("one empty paragraph") << "{\\rtf1\\par}"
                                         << "";
    QTest::newRow("empty paragraphs") << "{\\rtf1 a\\par\\par}"
                                      << "a\n";
    QTest::newRow("escapes") << "{\\rtf1 \\{\\\\\\}\\~\\_\\\na\\\r\nb}" << QString::fromUtf8("{\\}\u00A0\u2011\na\nb");
    QTest::newRow("binary with braces") << "{\\rtf1 a{\\pict\\bin5 }}{{\\b}b}"
                                        << "ab";
    QTest::newRow("other alphabet") << "{\\rtf1{\\fonttbl{\\f1\\fcharset204 A;}}\\f1\\'cc\\f0\\'dd}"
                                    << "Мİ";
    QTest::newRow("letters behind the code page") << "{\\rtf1\\ansicpg1252 \\'fe\\ansicpg1254 \\'fe}"
                                                  << "þş";
    QTest::newRow("never closed") << "{\\rtf1{\\b kal\\'fd"
                                  << "kalı";
    QTest::newRow("closed too soon") << "{\\rtf1 a}b}{\\rtf1 c}"
                                     << "a";
    QTest::newRow("bad hex and lone signs") << "{\\rtf1 a\\'zzb\\'4\\}"
                                            << "azzb4}";
    QTest::newRow("numbers beyond all") << "{\\rtf1\\fs99999999999999999999\\u99999999999?a\\bin-5 b\\uc-7\\u351 c}"
                                        << QString(QChar(0xFFFD)) + "abşc";
}

void RichTextTest::plain_text_of_writers() {
    QFETCH(QString, value);
    QFETCH(QString, text);
    QCOMPARE(rich_text::plain(value), text);
    if (!value.startsWith("{\\rtf")) return;

    // The document shows the same text, and what it saves still holds it.
    QTextDocument document;
    rich_text::load(value, document);
    QCOMPARE(document.toRawText().replace(QChar(0x2028), '\n').replace(QChar(0x2029), '\n'), text);
    QCOMPARE(rich_text::plain(rich_text::save(document)), text);
}

void RichTextTest::plain_text_comes_back_data() {
    QTest::addColumn<QString>("text");
    for (const QString text : {"", " ", "\n", "a\n\nb\n", "{\\rtf1 a}", "-12 {x}\\y \t5", "İğşÇ ı\u00A0€\u0081", "Ж漢😀",
                               "\u2028", "5'lik 12", "\\'fe"})
        QTest::newRow(qPrintable(text)) << text;
}

void RichTextTest::plain_text_comes_back() {
    QFETCH(QString, text);
    const QString value = rich_text::from_plain(text);
    QVERIFY(value.startsWith("{\\rtf1"));
    for (const QChar letter : value) QVERIFY(letter.unicode() < 0x80);
    text.replace(QChar(0x2028), '\n');
    QCOMPARE(rich_text::plain(value), text);
    QCOMPARE(rich_text::plain(rich_text::from_plain(QString(text).replace('\n', "\r\n"))), text);
}

void RichTextTest::formatting_is_read() {
    QTextDocument document;
    document.setPlainText("former student");
    rich_text::load(old_box, document);
    QCOMPARE(described(document),
             QStringList({"left:", "Şişli |Arial TUR 8.5", "Öğrenci|Arial TUR 8.5 bold", " no:\t12|Arial TUR 8.5",
                          "center:", "ikinci|Verdana 12 #ff0000 italic"}));
    QVERIFY(!document.isModified());
    QVERIFY(!document.isUndoAvailable());

    rich_text::load("{\\rtf1{\\fonttbl\\f0 Arial;\\f1 Tahoma;}\\f0 a{\\f1\\ul\\strike b}\\ul0 c\\plain d{\\b\\b0 e}}",
                    document);
    QCOMPARE(described(document), QStringList({"left:", "a|Arial", "b|Tahoma underline strike", "c|Arial", "de|"}));
}

void RichTextTest::formatting_comes_back() {
    QTextDocument document;
    QTextCursor cursor(&document);
    const auto write = [&](const QString& text, auto change) {
        QTextCharFormat format;
        change(format);
        cursor.insertText(text, format);
    };
    const auto paragraph = [&](Qt::Alignment side) {
        QTextBlockFormat format;
        format.setAlignment(side);
        cursor.insertBlock(format);
    };
    write("düz ", [](auto&) {});
    write("12 kalın\teğik", [](auto& f) { f.setFontWeight(QFont::Bold), f.setFontItalic(true); });
    write("-5 {çizgili}\\", [](auto& f) { f.setFontUnderline(true), f.setFontStrikeOut(true); });
    paragraph(Qt::AlignRight);
    write("\u2028Ж😀 ", [](auto& f) { f.setFontFamilies({"Yazı; {1}"}), f.setFontPointSize(9.5); });
    paragraph(Qt::AlignHCenter);
    paragraph(Qt::AlignJustify);
    write("renkli", [](auto& f) { f.setForeground(QColor(1, 128, 255)), f.setFontFamilies({"Arial"}); });
    write("siyah", [](auto& f) { f.setForeground(QColor(Qt::black)), f.setFontFamilies({"Verdana"}); });

    const QString value = rich_text::save(document);
    for (const QChar letter : value) QVERIFY(letter.unicode() < 0x80);
    QTextDocument again;
    rich_text::load(value, again);
    QStringList expected = described(document);
    expected.replaceInStrings("Yazı; {1}", "Yazı {1}");  // the end sign of a name cannot stand in it
    QCOMPARE(described(again), expected);
    QCOMPARE(rich_text::save(again), QString(value));
}

void RichTextTest::broken_input_ends() {
    const QString alphabet = QStringLiteral("{}\\'*; \n0129-abfuşЖ\u2029\uFDD0");
    std::mt19937 random(20261001);
    for (int round = 0; round < 3000; ++round) {
        QString value = round % 3 == 0 ? old_box : round % 3 == 1 ? word : office;
        for (auto change = random() % 8; change > 0; --change) {
            const qsizetype at = 6 + static_cast<qsizetype>(random() % static_cast<unsigned>(value.size() - 6));
            switch (random() % 3) {
                case 0:
                    value.remove(at, static_cast<qsizetype>(random() % 30));
                    break;
                case 1:
                    value.insert(at, alphabet[random() % static_cast<unsigned>(alphabet.size())]);
                    break;
                default:
                    value.insert(at, value.mid(static_cast<qsizetype>(random() % 200), 20));
                    break;
            }
        }
        const QString text = rich_text::plain(value);
        QVERIFY(text.size() <= value.size());
        QTextDocument document;
        rich_text::load(value, document);
        QVERIFY2(rich_text::plain(rich_text::save(document)) == text, qPrintable(value));
    }
}

void RichTextTest::deep_groups_and_pictures() {
    const QString deep = "{\\rtf1 " + QString(1'000'000, '{') + "a" + QString(1'000'000, '}') + "b}";
    QCOMPARE(rich_text::plain(deep), QString("ab"));
    QCOMPARE(rich_text::plain("{\\rtf1 " + QString(1'000'000, '{')), QString());
    const QString picture = "{\\rtf1 a{\\pict\\wmetafile8 " + QString(2'000'000, '0') + "}b}";
    QCOMPARE(rich_text::plain(picture), QString("ab"));
    const QString fonts =
        "{\\rtf1{\\fonttbl" + QString("\\f7 A;").repeated(100'000) + "}" + QString("\\f7").repeated(100'000) + " a}";
    QCOMPARE(rich_text::plain(fonts), QString("a"));
}
