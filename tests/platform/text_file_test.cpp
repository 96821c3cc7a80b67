#include "platform/text_file.h"

#include "platform/code_page.h"
#include "support/drives.h"
#include "support/refusal.h"
#include "support/run_all.h"

namespace {

const QString name = QStringLiteral("c:\\okul\\data\\liste.txt");
const QString below = QStringLiteral("c/okul/data/liste.txt");

}  // namespace

class TextFileTest : public QObject {
    Q_OBJECT

private slots:
    void every_byte_comes_back() {
        // Code page 1254 leaves these bytes without a letter.
        const QByteArray unassigned("\x81\x8D\x8E\x8F\x90\x9D\x9E", 7);
        for (int code = 0; code < 256; ++code) {
            const QByteArray byte(1, static_cast<char>(code));
            const QString letter = code_page::decode(byte);
            QCOMPARE(letter.size(), 1);
            const bool missing = unassigned.contains(byte[0]);
            QCOMPARE(letter[0] == QChar(QChar::ReplacementCharacter), missing);
            if (!missing) QCOMPARE(code_page::encode(letter), byte);
        }
        QCOMPARE(code_page::decode("\xD0\xF0\xDC\xFC\xDE\xFE\xDD\xFD\xD6\xF6\xC7\xE7\x80"), QString("ĞğÜüŞşİıÖöÇç€"));
        QVERIFY(refusal([] { code_page::encode(u"Ayşe Ωmega Ж"); }).contains("\"Ω\""));
        QVERIFY(refusal([] { code_page::encode(u"not 😀"); }).contains("U+1F600"));
        QVERIFY(refusal([] { code_page::encode(u"\x81"); }).contains("U+0081"));
    }

    void lines() {
        const Drives drives;
        const std::pair<QByteArray, QStringList> files[]{
            {"", {}},
            {"TL\r\nUSD", {"TL", "USD"}},
            {"a\nb\rc\r\n\r\nd\n\r", {"a", "b", "c", "", "d", ""}},
            {" \xDEi\xFEli, \"\xDDO\" \r\n \r\n", {" Şişli, \"İO\" ", " "}}};
        for (const auto& [bytes, lines] : files) {
            drives.put(below, bytes);
            QCOMPARE(text_file::read_lines(name), lines);
            text_file::write_lines(name, lines);
            QCOMPARE(drives.bytes(below), code_page::encode(lines.isEmpty() ? QString() : lines.join("\r\n") + "\r\n"));
        }
    }

    void items() {
        const Drives drives;
        const std::pair<QByteArray, QStringList> files[]{{"1\r\n2,3\n4\r5", {"1", "2", "3", "4", "5"}},
                                                         {"\"a, b\", c ,\"\",\r\n", {"a, b", "c", "", ""}},
                                                         {" \" a \" , b c ", {" a ", "b c"}},
                                                         {"1\r\n\r\n  \r\n2\r\n", {"1", "", "", "2"}},
                                                         {"5\" boru,2", {"5\" boru", "2"}},
                                                         {"\"a,b\r\n3", {"a,b", "3"}},
                                                         {"\"a\" x,2", {"a", "2"}}};
        for (const auto& [bytes, items] : files) {
            drives.put(below, bytes);
            QCOMPARE(text_file::read_items(name), items);
        }
        for (const QString text : {"11", "", " ", "a \"b\", c", "\"", ",,"}) {
            text_file::write_lines(name, {text_file::quoted(text) + ",7"});
            QCOMPARE(text_file::read_items(name), QStringList({text, "7"}));
        }
    }

    void failed_write_leaves_the_old_file() {
        const Drives drives;
        drives.put(below, "eski\r\n");
        const QString said = refusal([] { text_file::write_lines(name, {"yeni", "Ж"}); });
        QVERIFY2(said.contains(name) && said.contains("\"Ж\""), qPrintable(said));
        QCOMPARE(drives.bytes(below), QByteArray("eski\r\n"));

        // Written beside and renamed: whoever has the old file open goes on reading it, and nothing is left over.
        QFile open(drives.path(below));
        QVERIFY(open.open(QIODevice::ReadOnly));
        text_file::write_lines(name, {"yeni"});
        QCOMPARE(open.readAll(), QByteArray("eski\r\n"));
        QCOMPARE(drives.bytes(below), QByteArray("yeni\r\n"));
        QCOMPARE(QDir(drives.path("c/okul/data")).entryList(QDir::Files | QDir::Hidden), QStringList("liste.txt"));

        const QString missing = "c:\\okul\\data\\yok.txt";  // said as told, not as it lies below the drives
        const QString unread = refusal([&] { text_file::read_lines(missing); });
        QVERIFY2(unread.contains(missing) && !unread.contains(drives.path({})), qPrintable(unread));
    }
};

static const Registered<TextFileTest> registered;
#include "text_file_test.moc"
