#include "platform/workbook.h"

#include "support/drives.h"
#include "support/refusal.h"
#include "support/run_all.h"
#include "workbook_files.h"

#include <QStringEncoder>

#include <random>

using namespace workbook_files;

namespace {

const QString name = "c:\\okul\\liste.dat";

// The rows of a workbook, cells joined by "|".
QStringList rows_of(const Drives& drives, const QByteArray& file) {
    drives.put("c/okul/liste.dat", file);
    const Workbook book = Workbook::open(name);
    QStringList rows;
    for (int row = 1; row <= book.rows(); ++row) {
        QStringList cells;
        for (int column = 1; column <= 12; ++column) cells << book.text(row, column);
        while (!cells.isEmpty() && cells.last().isEmpty()) cells.removeLast();
        rows << cells.join('|');
    }
    return rows;
}

QByteArray cell(quint16 id, quint16 row, quint16 column, const QByteArray& content) {
    return record(id, bytes_of(row, column, quint16(15)) + content);
}
QByteArray result(quint16 column, const QByteArray& value) {
    return cell(0x0006, 2, column, value + QByteArray(10, '\0'));
}
// A text of one byte a letter.
QByteArray narrow(const QByteArray& text) {
    return bytes_of(static_cast<quint16>(text.size()), quint8(0)) + text;
}

QByteArray excel_97() {
    // Four texts: in the middle of the first one the record ends, and goes on in wide letters; the others have runs or
    // readings.
    const QByteArray texts =
        record(0x00FC, bytes_of(quint32(4), quint32(4), quint16(6), quint8(0)) + "Ay") +
        record(0x003C, bytes_of(quint8(1), u'ş', u'e', u'ğ', u'İ') + bytes_of(quint16(2), quint8(8), quint16(1)) +
                           "kr" + bytes_of(quint32(7)) + bytes_of(quint16(1), quint8(5), quint32(3), u'ö') + "???" +
                           narrow("0532"));
    const QByteArray sheet =
        cell(0x00FD, 0, 0, bytes_of(quint32(0))) + cell(0x00FD, 0, 1, bytes_of(quint32(1))) +
        cell(0x00FD, 0, 2, bytes_of(quint32(2))) + cell(0x00FD, 0, 3, bytes_of(quint32(3))) +
        cell(0x0203, 1, 0, bytes_of(5321234567.0)) +
        // 1250 whole, 12.5 as 1250 hundredths, 0.25 by the upper end of its double
        cell(0x00BD, 1, 1,
             bytes_of(quint32(1250 << 2 | 2)) + bytes_of(quint16(15), quint32(1250 << 2 | 3), quint16(2))) +
        cell(0x027E, 1, 3, bytes_of(quint32(0x3FD00000))) + cell(0x0205, 1, 4, bytes_of(quint8(1), quint8(0))) +
        cell(0x0205, 1, 5, bytes_of(quint8(0x2A), quint8(1))) + cell(0x0204, 1, 6, narrow("etiket")) +
        record(0x0809, bytes_of(quint16(0x0600), quint16(0x20))) + cell(0x0203, 1, 7, bytes_of(1.0)) + record(0x000A) +
        result(0, bytes_of(0.1 + 0.2)) + result(1, bytes_of(quint32(0), quint32(0xFFFF0000))) +
        record(0x0207, narrow("form\xFCl")) + result(2, bytes_of(quint32(1), quint32(0xFFFF0000)));
    return xls(0x0600, texts, {cell(0x0203, 0, 0, bytes_of(7.0)), sheet});
}

const QByteArray xlsx_rows =
    "<row r='2'><c r='B2' t='s'><v>1</v></c><c t='s'><v>0</v></c><c "
    "r='E2'><f>1+1</f><v>5.3212345670000002E9</v></c></row>"
    "<row><c t='inlineStr'><is><t>0532</t></is></c><c t='b'><v>1</v></c><c t='e'><v>#N/A</v></c>"
    "<c t='str'><f>A1</f><v>a_x000A_b</v></c><c><v>0.30000000000000004</v></c><c s='3'/><c><v>1e15</v></c></row>"
    "<row r='1'><c r='A1'><v>39507</v></c></row>";

const QByteArray ods_tables =
    "<t:table t:name='Bir'><t:table-row><t:table-cell o:value='1'/></t:table-row></t:table>"
    "<t:table t:name='İki'><t:table-header-rows><t:table-row t:number-rows-repeated='2'>"
    "<t:table-cell t:number-columns-repeated='2' o:value-type='float' "
    "o:value='5321234567'><x:p>5,3E9</x:p></t:table-cell>"
    "<t:covered-table-cell><x:p>örtülü</x:p></t:covered-table-cell><t:table-cell><o:annotation><x:p>not</x:p>"
    "</o:annotation><x:p> Ayşe <x:s x:c='2'/><x:span>Nur</x:span>\n "
    "</x:p><x:p>ikinci</x:p></t:table-cell></t:table-row>"
    "</t:table-header-rows><t:table-row><t:table-cell o:value-type='date' o:date-value='2008-02-29T12:00:00'/>"
    "<t:table-cell o:value-type='time' o:time-value='PT06H00M00S'/><t:table-cell o:value-type='boolean' "
    "o:boolean-value='false'/><t:table-cell o:value-type='string' o:string-value='0012'/></t:table-row>"
    "<t:table-row t:number-rows-repeated='1048570'><t:table-cell "
    "t:number-columns-repeated='16384'/></t:table-row></t:table>";

}  // namespace

class WorkbookTest : public QObject {
    Q_OBJECT

private slots:
    void cells_of_every_format() {
        const Drives drives;
        QCOMPARE(rows_of(drives, package(xlsx(xlsx_rows))),
                 QStringList(
                     {"39507", "|kalın ince|Ayşe & Işıl||5321234567", "0532|DOĞRU|#N/A|a\nb|0.3||1000000000000000"}));
        const QString repeated = "5321234567|5321234567||Ayşe   Nur \nikinci";
        QCOMPARE(rows_of(drives, package(ods(ods_tables))),
                 QStringList({repeated, repeated, "39507.5|0.25|YANLIŞ|0012"}));
        QCOMPARE(rows_of(drives, compound_file("Workbook", excel_97())),
                 QStringList({"Ayşeğİ|kr|ö|0532", "5321234567|1250|12.5|0.25|DOĞRU|#N/A|etiket", "0.3|formül|YANLIŞ"}));
        const QByteArray label = cell(0x0204, 0, 1, bytes_of(quint16(4)) + "\xDE\xFD\xF0 ") + result(0, bytes_of(1.5));
        QCOMPARE(rows_of(drives, compound_file("Book", xls(0x0500, record(0x0042, bytes_of(quint16(1254))), {label}))),
                 QStringList({"|Şığ ", "", "1.5"}));
    }

    void xml_is_read_however_it_is_written() {
        const Drives drives;
        Parts parts = xlsx(
            "<x:row xmlns:r='7' spans='1>\"2'\n r = \"1\"><!-- <c> --><x:c t='str'><x:v>&lt;&#x15F;&#305;&quot;\r\n"
            "<![CDATA[<&amp;>]]><?p <v> ?></x:v ></x:c></x:row>");
        const QStringList rows{"<şı\"\n<&amp;>"};
        QCOMPARE(rows_of(drives, package(parts)), rows);
        const QString sheet = parts.back().second;
        for (const QByteArray& encoded : {"\xEF\xBB\xBF<?xml version='1.0' encoding=\"utf-8\"?>\n" + sheet.toUtf8(),
                                          QByteArray(QStringEncoder(QStringConverter::Utf16LE)(sheet)),
                                          QByteArray(QStringEncoder(QStringConverter::Utf16BE)("\uFEFF" + sheet))}) {
            parts.back().second = encoded;
            QCOMPARE(rows_of(drives, package(parts)), rows);
        }
        // Far more than is unpacked at a time.
        QByteArray many;
        QStringList texts;
        for (int i = 0; i < 9000; ++i) {
            texts << QString("Ş<%1").arg(i);
            many += "<row><c t='str'><v>" + texts.last().toHtmlEscaped().toUtf8() + "</v></c></row>";
        }
        QCOMPARE(rows_of(drives, package(xlsx(many))), texts);
    }

    void xml_that_is_not_well_formed_is_refused() {
        const Drives drives;
        for (const QByteArray wrong :
             {"<row><c><v>1</c></v></row>", "<row r=1/>", "<row r='1", "<row", "<row r='1's='2'/>", "<row r='<'/>",
              "<row r/>", "<c t='str'><v>&euro;</v></c>", "<c t='str'><v>&#1;</v></c>",
              "<c t='str'><v>&#xD800;</v></c>", "<c t='str'><v>a & b</v></c>", "<c t='str'><v>\x01</v></c>",
              "<c t='str'><v>\xFE\xFD</v></c>", "<row><![CDATA[x</row>", "<!-- ", "</sheetData></worksheet><row/>",
              "</sheetData></worksheet>1"})
            QVERIFY2(refusal([&] { rows_of(drives, package(xlsx(wrong))); }).contains("bozuk ya da eksik"), wrong);
        Parts parts = xlsx({});
        for (const QByteArray& sheet : {QByteArray(), QByteArray(" "), QByteArray("<worksheet><sheetData>"),
                                        QByteArray("<?xml version='1.0' encoding='windows-1254'?><worksheet/>")}) {
            parts.back().second = sheet;
            QVERIFY2(refusal([&] { rows_of(drives, package(parts)); }).contains("bozuk ya da eksik"), sheet);
        }
    }

    void encoding_and_separator_of_a_text_show_themselves() {
        const Drives drives;
        const QString text = "No;Ad;Tutar\r\n1250;\"Işıl \"\"Ş\"\"; Nur\";12,50\r\n0012;;1,5\r\n";
        const QStringList rows{"No|Ad|Tutar", "1250|Işıl \"Ş\"; Nur|12,50", "0012||1,5"};
        const QByteArray little = QStringEncoder(QStringConverter::Utf16LE)(text);
        const QByteArray big = QStringEncoder(QStringConverter::Utf16BE)(text);
        for (const QByteArray& file :
             {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), "\xFF\xFE" + little, "\xFE\xFF" + big, little,
              QByteArray("No;Ad;Tutar\r1250;\"I\xFE\xFDl \"\"\xDE\"\"; Nur\";12,50\r0012;;1,5"),
              QByteArray("No\tAd\tTutar\n1250\t\"I\xFE\xFDl \"\"\xDE\"\"; Nur\"\t12,50\n0012\t\t1,5\n"),
              "sep=:\r\n" + text.toUtf8().replace(';', ':').replace(": Nur", "; Nur")})
            QCOMPARE(rows_of(drives, file), rows);
        QCOMPARE(rows_of(drives, "1,\"a, b\",x;y\n2,\"c\nd\",z"), QStringList({"1|a, b|x;y", "2|c\nd|z"}));
    }

    void what_cannot_be_read_says_why() {
        const Drives drives;
        Parts bomb = xlsx("<row><c><v>&a;</v></c></row>");
        bomb.back().second.prepend("<!DOCTYPE x [<!ENTITY b 'bb'><!ENTITY a '&b;&b;'>]>");
        Parts locked = ods(ods_tables);
        locked.push_back({"META-INF/manifest.xml", "<m><file-entry><encryption-data/></file-entry></m>"});
        Parts chart = xlsx({});
        chart[2].second.replace("activeTab='1'", "");
        Parts letter = xlsx({});
        letter[2].second = "<w:document xmlns:w='w'><w:body/></w:document>";
        const QByteArray whole = package(xlsx(xlsx_rows)), old = compound_file("Workbook", excel_97());
        const QByteArray deep = QByteArray("<g>").repeated(100'000) + QByteArray("</g>").repeated(100'000);
        const QByteArray row = "<t:table t:name='İki'><t:table-row t:number-rows-repeated='1048576'><t:table-cell ";
        const std::pair<QByteArray, const char*> files[]{
            {{}, "boş"},
            {"\x89PNG\r\n\x1A\n\0\0\0\rIHDR", "çalışma kitabı değil"},
            {"<html><table>", "çalışma kitabı değil"},
            {package({{"word/document.xml", "<w/>"}}), "çalışma kitabı değil"},
            {package(letter), "çalışma kitabı değil"},
            {"{\\rtf1 Ali;Can;1}", "çalışma kitabı değil"},
            {"%PDF-1.4\n1 0 obj", "çalışma kitabı değil"},
            {compound_file("WordDocument", "x"), "çalışma kitabı değil"},
            {package(chart), "tablo yok"},
            {whole.left(whole.size() - 40), "bozuk ya da eksik"},
            {old.left(old.size() / 2), "bozuk ya da eksik"},
            {compound_file("Workbook", excel_97().chopped(20)), "bozuk ya da eksik"},
            {package(xlsx("<row><c t='s'><v>9</v></c></row>")), "bozuk ya da eksik"},
            {package(xlsx("<row><c r='ZZZZZZZZZZZZZZ1'><v>9</v></c></row>")), "bozuk ya da eksik"},
            {package(xlsx(deep)), "bozuk ya da eksik"},
            {package(bomb), "bozuk ya da eksik"},
            {package(xlsx("<row><c t='str'><v>" + QByteArray(3'000'000, 'x') + "</v></c></row>")), "çok büyük"},
            {package(ods(row + "t:number-columns-repeated='16384' o:value='1'/></t:table-row></t:table>")),
             "çok büyük"},
            {package(xlsx(xlsx_rows), "gizli"), "parola"},
            {package(locked), "parola"},
            {compound_file("EncryptedPackage", "x"), "parola"},
            {compound_file("Workbook", xls(0x0600, record(0x002F, "xx"), {QByteArray()})), "parola"},
        };
        for (const auto& [file, words] : files) {
            const QString said = refusal([&] { rows_of(drives, file); });
            QVERIFY2(said.startsWith(name) && said.contains(words), qPrintable(said + " / " + words));
        }
        QVERIFY(refusal([] { Workbook::open("c:\\yok.xlsx"); }).contains("okunamadı"));
    }

    // Whatever stands in a file, it is read or refused.
    void broken_bytes_do_no_harm() {
        const Drives drives;
        std::minstd_rand random(1254);
        const QByteArray whole = compound_file("Workbook", excel_97());
        for (int round = 0; round < 1500; ++round) {
            QByteArray broken = whole;
            for (int i = 0; i < 4; ++i)
                broken[static_cast<qsizetype>(random() % static_cast<unsigned>(whole.size()))] =
                    static_cast<char>(random());
            const QString said = refusal([&] { rows_of(drives, broken); });
            QVERIFY2(said.isEmpty() || said.startsWith(name), qPrintable(said));
        }
    }
};

static const Registered<WorkbookTest> registered;
#include "workbook_test.moc"
