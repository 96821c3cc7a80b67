#include "collections/invoice.h"

#include "collections/invoice_layout.h"
#include "collections/printer_letters.h"
#include "collections_tests.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "support/paper_lines.h"
#include "till.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int matrix = 0, laser = 1;

// Codes of an old printer's Turkish set; 0x81, 0x8D and 0x9E have no letter in the office's code page.
PrintSettings old_printer() {
    PrintSettings print;
    print.krk = {"166", "167", "154", "129", "158", "159", "152", "141", "153", "148", "128", "135"};
    return print;
}

void lay_out(SessionContext& session, std::initializer_list<std::array<const char*, 4>> items) {
    session.print.layoutCount = 0;
    for (const auto& [code, line, column, second] : items) {
        const auto i = static_cast<std::size_t>(session.print.layoutCount++);
        session.print.layoutLine[i] = 14 + static_cast<int>(i);
        session.print.flbl[i] = u' ' + QString(code);
        session.print.yy[i] = line;
        session.print.xx[i] = column;
        session.print.aa[i] = second;
    }
}

// The lines as a person sees them on the sheet.
QStringList seen(const std::vector<InvoiceLine>& lines) {
    QStringList rows;
    for (const InvoiceLine& line : lines) {
        QString row;
        for (const InvoiceText& text : line) row = row.leftJustified(text.column - 1) + text.text;
        rows << row;
    }
    return rows;
}

// Pays 1.000 on a first and 118 on a second instalment with an invoice.
class Invoicing {
public:
    explicit Invoicing(int printer)
        : clock_([] { return QDateTime(QDate(2026, 10, 5), QTime(9, 0)); }),
          till({[this] { fatura_yaz(till.kurvo, till.session); }, {}}) {
        School::instalment("20261001", 1000);
        School::instalment("20261101", 500);
        till.session.print = old_printer();
        till.session.print.OptPrn = printer;
        till.session.print.KSAY = u"2"_s;
        till.session.print.KDVc = 1;
        till.session.print.KDVZ = u"18"_s;
        till.kurvo.LTCNO->setText(u"111"_s);
        till.kurvo.fADSOY->setText(u"ŞÜKRÜ IŞIK"_s);
        till.kurvo.fILCE->setText(u"Nilüfer"_s);
        till.kurvo.fIL->setText(u"Bursa"_s);
        till.pick();
    }
    void collect() { till.collect(u"1118"_s, till.kurvo.FOP); }

private:
    School school_;
    const clock_source::Override clock_;

public:
    Till till;
    std::vector<PrintSurface::Document>& papers = school_.papers;
    static QByteArray file() {
        QFile written(paths::native(u"c:\\qlm\\bak.txt"_s));
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }
    static void make_folder() { QDir().mkpath(qEnvironmentVariable("KURVO_DRIVES") + u"/c/qlm"_s); }
};

}  // namespace

void InvoiceTest::letters_of_the_printer() {
    PrintSettings print = old_printer();
    const QString sent = harf_cevir(u"ĞğÜüŞşİıÖöÇç Iié"_s, print);
    QCOMPARE(printer_bytes(sent), QByteArray("\xA6\xA7\x9A\x81\x9E\x9F\x98\x8D\x99\x94\x80\x87 Ii\xE9"));
    QVERIFY_EXCEPTION_THROWN(printer_bytes(u"Ω"_s), std::runtime_error);
    print.krk[0] = u"220"_s;  // Ğ as Ü, which has a code of its own
    QCOMPARE(printer_bytes(harf_cevir(u"ĞÜ"_s, print)), QByteArray("\xDC\x9A"));
    print.OptPrn = laser;
    QCOMPARE(harf_cevir(u"ĞÜ"_s, print), u"ĞÜ"_s);
}

void InvoiceTest::tax_data() {
    QTest::addColumn<qint64>("amount");
    QTest::addColumn<QString>("percent");
    QTest::addColumn<bool>("included");
    QTest::addColumn<qint64>("net");  // hundredths
    QTest::addColumn<qint64>("vat");
    QTest::newRow("118 included") << qint64(118) << "18" << true << qint64(10000) << qint64(1800);
    QTest::newRow("118 on top") << qint64(118) << "18" << false << qint64(11800) << qint64(2124);
    // 100 / 1.18 = 84.745...
    QTest::newRow("net is cut") << qint64(100) << "18" << true << qint64(8474) << qint64(1526);
    QTest::newRow("exact net") << qint64(59) << "18" << true << qint64(5000) << qint64(900);
    QTest::newRow("whole tax") << qint64(50) << "18" << false << qint64(5000) << qint64(900);
    // 7 * 8.5 = 59.5; with 0.9 on it 60.4.
    QTest::newRow("half is rounded up") << qint64(7) << "8.5" << false << qint64(700) << qint64(60);
    QTest::newRow("a tenth is rounded up") << qint64(1) << "0.1" << false << qint64(100) << qint64(1);
    QTest::newRow("less is not") << qint64(1) << "0.09" << false << qint64(100) << qint64(0);
    QTest::newRow("no tax") << qint64(118) << "0" << true << qint64(11800) << qint64(0);
    QTest::newRow("large") << qint64(90'000'000'000'000) << "20" << false << qint64(9'000'000'000'000'000)
                           << qint64(1'800'000'000'000'000);
    QTest::newRow("large included") << qint64(90'000'000'000'000) << "20" << true << qint64(7'500'000'000'000'000)
                                    << qint64(1'500'000'000'000'000);
}

void InvoiceTest::tax() {
    QFETCH(qint64, amount);
    QFETCH(QString, percent);
    QFETCH(bool, included);
    const VatSplit split = split_vat(Money::units(amount), numbers::money(percent), included);
    QTEST(qint64(split.net.parts() / 100), "net");
    QTEST(qint64(split.vat.parts() / 100), "vat");
}

void InvoiceTest::lines_follow_the_layout_data() {
    using Layout = std::vector<LayoutItem>;
    QTest::addColumn<Layout>("layout");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("each item adds a line") << Layout{{0, 3, 1, 0}, {1, 5, 4, 0}, {2, 7, 2, 0}}
                                           << QStringList({"", "", "Ad", "", "", "   Veli", "", "", " 111"});
    QTest::newRow("amounts end before the tenth column")
        << Layout{{11, 1, 3, 0}, {12, 1, 1, 0}} << QStringList({"     1.234,5", "          "});
    QTest::newRow("body counts as one") << Layout{{0, 1, 1, 0}, {10, 3, 2, 12}, {15, 9, 1, 0}, {1, 10, 1, 0}}
                                        << QStringList({"Ad", "", "", " Senet  bir     1.000",
                                                        " Senet  iki ve daha uzun", QString(19, u' ') + "20", "", "",
                                                        "", "", "", "", "", "Veli"});
    QTest::newRow("above the current line")
        << Layout{{0, 2, 1, 0}, {1, 1, 1, 0}, {2, 2, 1, 0}} << QStringList({"", "Ad", "Veli", "", "111"});
    QTest::newRow("columns below 1") << Layout{{0, 0, 0, 0}} << QStringList({"Ad"});
}

void InvoiceTest::lines_follow_the_layout() {
    QFETCH(std::vector<LayoutItem>, layout);
    InvoiceTexts texts;
    texts[0] = u"Ad"_s;
    texts[1] = u"Veli"_s;
    texts[2] = u"111"_s;
    texts[11] = u"1.234,5"_s;
    QTEST(seen(invoice_lines(layout, texts, {{u"Senet  bir"_s, u"1.000"_s}, {u"Senet  iki ve daha uzun"_s, u"20"_s}})),
          "lines");
}

void InvoiceTest::matrix_invoice_is_a_file() {
    Invoicing office(matrix);
    Invoicing::make_folder();
    lay_out(office.till.session, {{"0", "1", "5", "0"},
                                  {"1", "1", "5", "0"},
                                  {"5", "2", "1", "0"},
                                  {"9", "2", "1", "0"},
                                  {"8", "2", "3", "0"},
                                  {"10", "3", "1", "20"},
                                  {"11", "5", "20", "0"},
                                  {"12", "5", "20", "0"},
                                  {"13", "5", "20", "0"},
                                  {"14", "6", "1", "0"}});
    office.collect();
    QCOMPARE(Invoicing::file(), QByteArray("    AY\x9E"
                                           "E NUR YILDIRIM\r\n"
                                           "    \x9E\x9AKR\x9A I\x9EIK\r\n"
                                           "\r\nNil\x81"
                                           "fer Bursa\r\n"
                                           "05.10.2026\r\n"
                                           "  1\r\n"
                                           "\r\n") +
                                    "Nakit" + QByteArray(20, ' ') + "1000\r\n" + "Nakit" + QByteArray(21, ' ') +
                                    "118\r\n\r\n" + QByteArray(23, ' ') + "947,45\r\n" + QByteArray(23, ' ') +
                                    "170,55\r\n" + QByteArray(24, ' ') + "1.118\r\n\r\nBin Y\x81zOnSekiz\r\n");
    QVERIFY(office.papers.empty());
}

void InvoiceTest::laser_invoice_is_a_sheet_a_copy() {
    Invoicing office(laser);
    office.till.session.print.KDVc = 0;
    lay_out(office.till.session,
            {{"0", "2", "5", "0"}, {"10", "2", "1", "20"}, {"13", "4", "20", "0"}, {"14", "76", "1", "0"}});
    office.collect();
    QCOMPARE(office.papers.size(), std::size_t(2));
    for (const PrintSurface::Document& paper : office.papers) {
        PrintSurface measure({}, {});
        measure.font(paper.pages[0][0].font);
        QCOMPARE(measure.font().family, u"Courier New"_s);
        const double height = measure.line_height();
        const auto row = [&](double x, int line, const char* text) {
            return u"%1,%2 10 - %3"_s.arg(x).arg((line - 1) * height).arg(QString::fromUtf8(text));
        };
        QCOMPARE(paper_lines(paper.pages[0]),
                 QStringList({row(480, 2, "AYŞE NUR YILDIRIM"), row(0, 3, "Nakit   "), row(25 * 120, 3, "1000"),
                              row(0, 4, "Nakit   "), row(26 * 120, 4, "118"), row(21 * 120, 6, "1.319,24")}));
        // 74 lines of 226 twips fill a sheet; line 79 is the fifth of the next one.
        QCOMPARE(paper_lines(paper.pages.at(1)), QStringList({row(0, 5, "BirMilyon ÜçyüzOnDokuzBin YirmiDört")}));
    }
}

void InvoiceTest::nothing_is_printed_data() {
    QTest::addColumn<QString>("copies");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("told");
    QTest::newRow("no copies") << "0"
                               << "0"
                               << "1"
                               << "";
    QTest::newRow("no field") << "1"
                              << "16"
                              << "1"
                              << "Fatura.txt hatalı, 14. satır: alan \"16\"";
    QTest::newRow("word for a field") << "1"
                                      << "Ad"
                                      << "1"
                                      << "alan \"Ad\"";
    QTest::newRow("beside the sheet") << "1"
                                      << "0"
                                      << "120"
                                      << "14. satır: 120. sütun kağıda sığmıyor";
}

void InvoiceTest::nothing_is_printed() {
    QFETCH(QString, copies);
    QFETCH(QString, code);
    QFETCH(QString, column);
    QFETCH(QString, told);
    prompt::Script script;
    if (!told.isEmpty()) script.expect(told);
    Invoicing office(laser);
    office.till.session.print.KSAY = copies;
    lay_out(office.till.session, {{"8", "1", "1", "0"}});
    office.till.session.print.flbl[0] = u' ' + code;
    office.till.session.print.xx[0] = column;
    office.collect();
    QCOMPARE(script.failures(), QStringList());
    QVERIFY(office.papers.empty());
    QCOMPARE(School::odeme(), QStringList({"1250|20261001|1000", "1250|20261101|118"}));
}
