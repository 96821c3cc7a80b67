#include "collections/invoice.h"

#include "collections/invoice_amounts.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "support/run_all.h"
#include "till.h"

#include <QFile>

using namespace Qt::StringLiterals;

class InvoiceTest : public QObject {
    Q_OBJECT

private slots:
    void tax() {
        const auto split = [](qint64 amount, const QString& percent, bool included) {
            const VatSplit both = split_vat(Money::units(amount), numbers::money(percent), included);
            return u"%1 + %2"_s.arg(both.net.parts() / 100).arg(both.vat.parts() / 100);  // in hundredths
        };
        QCOMPARE(split(118, u"18"_s, true), u"10000 + 1800"_s);
        QCOMPARE(split(118, u"18"_s, false), u"11800 + 2124"_s);
        QCOMPARE(split(100, u"18"_s, true), u"8474 + 1526"_s);  // 100 / 1.18 = 84.745...
        QCOMPARE(split(7, u"8.5"_s, false), u"700 + 60"_s);     // 7 * 8.5 = 59.5; with 0.9 on it 60.4
        QCOMPARE(split(1, u"0.09"_s, false), u"100 + 0"_s);
        QCOMPARE(split(90'000'000'000'000, u"20"_s, true), u"7500000000000000 + 1500000000000000"_s);
    }

    void matrix_invoice_is_a_file() {
        TillFiles files;
        const clock_source::Override clock([] { return QDateTime(QDate(2026, 10, 5), QTime(9, 0)); });
        files.instalment("20261001", 1000);
        files.instalment("20261101", 500);
        Till till({[&] { fatura_yaz(till.kurvo, till.session); }, {}});
        PrintSettings& print = till.session.print;
        // Codes of an old printer's Turkish set; 0x81, 0x8D and 0x9E have no letter in the office's code page.
        print.krk = {"166", "167", "154", "129", "158", "159", "152", "141", "153", "148", "128", "135"};
        print.OptPrn = 0;
        print.KSAY = u"2"_s;
        print.KDVc = 1;
        print.KDVZ = u"18"_s;
        for (const QString& item :
             u"0 1 5|1 1 5|5 2 1|9 2 1|8 2 3|10 3 1|11 5 20|12 5 20|13 5 20|14 6 1"_s.split(u'|')) {
            const auto i = static_cast<std::size_t>(print.layoutCount++);
            print.layoutLine[i] = 14 + static_cast<int>(i);
            print.flbl[i] = u' ' + item.section(u' ', 0, 0);
            print.yy[i] = item.section(u' ', 1, 1);
            print.xx[i] = item.section(u' ', 2, 2);
            print.aa[i] = item.startsWith(u"10"_s) ? u"20"_s : u"0"_s;
        }
        till.kurvo.fADSOY->setText(u"ŞÜKRÜ IŞIK"_s);
        till.kurvo.fILCE->setText(u"Nilüfer"_s);
        till.kurvo.fIL->setText(u"Bursa"_s);
        till.pick();
        till.collect(u"1118"_s, till.kurvo.FOP);
        QFile written(paths::native(u"c:\\qlm\\bak.txt"_s));
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), QByteArray("    AY\x9E"
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
    }
};

static const Registered<InvoiceTest> registered;
#include "invoice_test.moc"
