#include "platform/rich_text.h"

#include "platform/rtf_reader.h"
#include "support/run_all.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>

#include <algorithm>
#include <random>

#ifdef __GLIBC__
#include <malloc.h>
#endif

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
    "Ba\\u351?l}{\\author X}}{\\*\\generator Word;}{\\header \\pard bas\\par}\\pard\\plain \\ltrpar\\ql {\\rtlch "
    "\\ltrch\\f39 "
    "\\u214\\'d6denecek: \\u351\\'fe}{\\field{\\*\\fldinst {HYPERLINK \"x\"}}{\\fldrslt {\\f39\\ul ba\\'f0}}}"
    "{\\*\\shppict{\\pict\\pngblip 8950}}{\\nonshppict{\\pict 00ff}}\\par {\\f0 \\'fe\\u8364\\'80}\\line alt\\cell "
    "b\\row }");

const QString office = QStringLiteral(
    "{\\rtf1\\ansi\\deff3\\adeflang1025\n{\\fonttbl{\\f3\\froman\\fprq2\\fcharset0 Liberation Serif;}}\n"
    "{\\*\\listtable{\\list x}}{\\pntext\\f3 1.\\tab}\\pard\\plain {\\u304\\'49\\u287\\'67\\u55357\\'3f\\u56832\\'3f}"
    "\\u8211\\endash {\\v gizli}\\u-4051?{\\uc2\\u351 st}{\\uc0\\u305}\\par \\par son}");

// As a bad disk, a cut transfer or another program may leave a document.
QString mutated(QString value, std::mt19937& random) {
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % static_cast<unsigned>(limit)); };
    const QString alphabet = QStringLiteral("{}\\'*; \n0129-abfuşЖ\u2029\uFDD0");
    const QStringList words{"\\u", "\\fs", "\\f", "\\cf", "\\uc", "\\red", "\\bin", "\\ansicpg", "\\fcharset", "\\b"};
    const QStringList numbers{"-1", "0", "65536", "1114112", "2147483648", "-99999999999999999999", "40", "7"};
    for (auto change = below(9); change > 0; --change) {
        const qsizetype at = 6 + below(value.size() - 5);
        const auto way = below(8);
        if (way == 0) value.truncate(at);
        if (way == 1) value += value.left(4000);
        if (way == 2) value.remove(at, below(30));
        if (way == 3) value.insert(at, value.mid(below(200), 20));
        if (way == 4 || way == 5) value.insert(at, words[below(words.size())] + numbers[below(numbers.size())]);
        if (way > 5) value.insert(at, alphabet[below(alphabet.size())]);
    }
    return value;
}

bool all_ascii(const QString& value) {
    return std::ranges::all_of(value, [](QChar letter) { return letter.unicode() < 0x80; });
}

QString look_of(const QTextCharFormat& format) {
    QString look = format.fontFamilies().toStringList().value(0);
    if (format.fontPointSize() > 0) look += ' ' + QString::number(format.fontPointSize());
    if (format.foreground().style() != Qt::NoBrush) look += ' ' + format.foreground().color().name();
    if (const QBrush back = format.background(); back.style() != Qt::NoBrush && back.color().alpha() > 0)
        look += " on " + back.color().name();
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) look += " high";
    if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) look += " low";
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

class RichTextTest : public QObject {
    Q_OBJECT

private slots:
    void plain_text_of_writers() {
        const std::pair<QString, QString> values[]{
            {"Ayşe {\\b}", "Ayşe {\\b}"},
            {"a\r\nb\rc\n", "a\nb\nc\n"},
            {old_box, "Şişli Öğrenci no:\t12\nikinci"},
            {word, "Ödenecek: şbağ\nþ€\nalt\tb"},
            {office, QString("1.\tİğ😀–") + QChar(0xF02D) + "şı\n\nson"},
            {"{\\rtf1\\par}", ""},
            {"{\\rtf1 a\\par\\par}", "a\n"},
            {"{\\rtf1 \\{\\\\\\}\\~\\_\\\na\\\r\nb}", "{\\}\u00A0\u2011\na\nb"},
            {"{\\rtf1 a{\\pict\\bin5 }}{{\\b}b}", "ab"},
            {"{\\rtf1{\\fonttbl{\\f1\\fcharset204 A;}}\\f1\\'cc\\f0\\'dd}", "Мİ"},
            {"{\\rtf1\\ansicpg1252 \\'fe\\ansicpg1254 \\'fe}", "þş"},
            {"{\\rtf1{\\b kal\\'fd", "kalı"},
            {"{\\rtf1 a{\\shp{\\*\\shpinst{\\sp{\\sv 1}}{\\shptxt kutu\\par}}{\\shprslt kutu}}b{\\footnote  d}}",
             "akutu\nb d"},
            {"{\\rtf1 a}b}{\\rtf1 c}", "a"},
            {"{\\rtf1 a\\'zzb\\'4\\}", "azzb4}"},
            {"{\\rtf1\\fs99999999999999999999\\u99999999999?a\\bin-5 b\\uc-7\\u351 c}",
             QString(QChar(0xFFFD)) + "abşc"}};
        for (const auto& [value, text] : values) QCOMPARE(rich_text::plain(value), text);
    }

    void plain_text_comes_back() {
        for (const QString given : {"", " ", "\n", "a\n\nb\n", "{\\rtf1 a}", "-12 {x}\\y \t5", "İğşÇ ı\u00A0€\u0081",
                                    "Ж漢😀", "\u2028", "5'lik 12", "\\'fe"}) {
            const QString value = rich_text::from_plain(QString(given).replace('\n', "\r\n"));
            QVERIFY(value.startsWith("{\\rtf1") && all_ascii(value));
            QCOMPARE(rich_text::plain(value), QString(given).replace(QChar(0x2028), '\n'));
        }
    }

    void formatting_is_read() {
        QTextDocument document;
        document.setPlainText("former student");
        rich_text::load(old_box, document);
        QCOMPARE(described(document),
                 QStringList({"left:", "Şişli |Arial TUR 8.5", "Öğrenci|Arial TUR 8.5 bold", " no:\t12|Arial TUR 8.5",
                              "center:", "ikinci|Verdana 12 #ff0000 italic"}));
        QVERIFY(!document.isModified() && !document.isUndoAvailable());

        rich_text::load(
            "{\\rtf1{\\fonttbl\\f0 Arial;\\f1 Tahoma;}\\f0 a{\\f1\\ul\\strike b}\\ul0 c\\plain d{\\b\\b0 e}"
            "{\\colortbl;\\red255;}\\highlight1 f\\cb0\\super g\\nosupersub h}",
            document);
        QCOMPARE(described(document), QStringList({"left:", "a|Arial", "b|Tahoma underline strike", "c|Arial", "de|",
                                                   "f|on #ff0000", "g|high", "h|"}));
    }

    void formatting_comes_back() {
        QTextDocument document;
        document.setHtml(
            "<p>düz <b><i>12 kalın eğik</i></b><u><s>-5 {çizgili}\\</s></u></p><p "
            "align='right'>Ж😀<sup>2</sup><sub>3</sub></p>"
            "<p align='center'>orta</p><p align='justify'><span "
            "style='color:#0180ff;background:#ffff00;font-family:Arial;font-size:9.5pt'>"
            "renkli</span><span style='color:#000000;background:transparent'>siyah</span></p>");
        QCOMPARE(described(document).mid(6, 2), QStringList({"2|high", "3|low"}));
        QCOMPARE(described(document).last(), "siyah|#000000");
        QTextCharFormat odd;
        odd.setFontFamilies({"Yazı; {1}"});
        QTextCursor(&document).insertText("\u2028tab\t", odd);
        const QString value = rich_text::save(document);
        QVERIFY(all_ascii(value));
        QTextDocument again;
        rich_text::load(value, again);
        QStringList expected = described(document);
        expected.replaceInStrings("Yazı; {1}", "Yazı {1}");  // the end sign of a name cannot stand in it
        QCOMPARE(described(again), expected);
        QCOMPARE(rich_text::save(again), QString(value));
    }

    void broken_input_ends() {
        std::mt19937 random(20261001);
        const int rounds = qEnvironmentVariableIsSet("KURVO_LONG_TESTS") ? 100'000 : 4000;
        for (int round = 0; round < rounds; ++round) {
            const QString value = mutated(round % 3 == 0 ? old_box : round % 3 == 1 ? word : office, random);
            const QString text = rich_text::plain(value);
            QVERIFY(text.size() <= value.size());
            QTextDocument document;
            rich_text::load(value, document);
            QVERIFY2(rich_text::plain(rich_text::save(document)) == text, qPrintable(value));
        }
    }

    void deep_groups_end() {
        for (const QString deep : {"{", "{\\b", "{\\*", "{\\pict", "{\\fonttbl", "{\\uc9\\u1"}) {
            const QString groups = deep.repeated(100'000);
            QCOMPARE(rich_text::plain("{\\rtf1 a" + groups + QString("}").repeated(100'000) + "b}"), "ab");
            QVERIFY(rich_text::plain("{\\rtf1 a" + groups).startsWith('a'));
        }
    }

    // No input makes the memory of a workstation short: while it is read, and as the document that it becomes.
    void memory_is_bounded() {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
        const auto in_use = [] {
            const struct mallinfo2 heap = mallinfo2();
            return static_cast<qint64>(heap.uordblks + heap.hblkhd);
        };
        struct Watch : rtf::Sink {
            std::function<qint64()> in_use;
            qint64 most = 0;
            void run(const QString&, const rtf::Style&, const rtf::Tables&) override {}
            void paragraph_end(rtf::Alignment) override {}
            void document_end(rtf::Alignment) override { most = in_use(); }
        };
        for (const QString unit : {"{", "{\\b", "\\\n", "a\\\n", "\\b a\\b0 b", "\\qc a\\par ", "{\\colortbl;;;;;;;;",
                                   "{\\fonttbl{\\f1 a", "\\f%1\\fs%1 a", "\\fs%1\\cf%1\\b a\\\n"}) {
            QString value = "{\\rtf1{\\colortbl" + QString(";\\red1").repeated(200) + "}";
            for (int i = 0; i < 50'000; ++i) value += unit.contains("%1") ? unit.arg(i % 3000) : unit;
            Watch watch;
            watch.in_use = in_use;
            qint64 before = in_use();
            rtf::Reader(value, watch).read();
            QVERIFY2(watch.most - before <= 200 * value.size(), qPrintable(unit));
            before = in_use();
            QTextDocument document;
            rich_text::load(value, document);
            QVERIFY2(in_use() - before <= 200 * value.size(), qPrintable(unit));
        }
#else
        QSKIP("the heap does not tell what is in use");
#endif
    }
};

static const Registered<RichTextTest> registered;
#include "rich_text_test.moc"
