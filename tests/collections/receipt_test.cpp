#include "platform/clock.h"
#include "support/paper_lines.h"
#include "support/run_all.h"
#include "till.h"

class ReceiptTest : public QObject {
    Q_OBJECT

private slots:
    void two_copies_on_one_sheet() {
        const clock_source::Override clock([] { return QDateTime(QDate(2026, 10, 5), QTime(9, 0)); });
        TillFiles files;
        files.instalment("20261001", 1000);
        files.instalment("20261101", 500);
        files.instalment("20261201", 1250.5);
        Till till;
        till.kurvo.CheckKad->setChecked(true);
        till.pick();
        till.collect("1200", till.kurvo.MOP);

        QCOMPARE(files.papers.size(), std::size_t(1));
        QCOMPARE(files.papers[0].pages.size(), std::size_t(1));
        const PrintSurface::Page& page = files.papers[0].pages[0];
        constexpr std::size_t half = 31;
        QCOMPARE(page.size(), 2 * half);
        const QStringList printed = paper_lines(page);
        const QString upper =
            "500,450 14 bi ÖZEL IŞIK|4000,1050 12 b TAHSİLAT MAKBUZU|"
            "8500,550 10 - Tarih            :  05.10.2026|8500,850 10 - Makbuz No :  1|"
            "1000,1850 12 - Öğrenci No : 1250|1000,2200 12 - Adı Soyadı   : AYŞE NUR YILDIRIM|"
            "1000,2750 10 b Vade Tarihi|2500,2750 10 b Şekli|4700,2750 10 b Tutar|6000,2750 10 b Açıklama|"
            "1000,3000-10500,3000|1000,3150 10 - 01.10.2026|2500,3150 10 - Nakit|4910,3150 10 - 1000|"
            "6000,3150 10 -  |1000,3400 10 - 01.11.2026|2500,3400 10 - Nakit|5000,3400 10 - 200|6000,3400 10 -  |"
            "1000,3800-10500,3800|1000,3950 10 - Toplam Alınan :|4820,3950 10 - 1.200|1000,4650 10 b Bin İkiyüz";
        QCOMPARE(printed.first(23), upper.split(u'|'));
        QCOMPARE(printed[24], "1000,5250 10 - Kalan borcunuz   ");
        QCOMPARE(page[29].x, 1000.0);
        QCOMPARE(page[29].y, page[28].y + PrintSurface({}, {}).line_height());
        QCOMPARE(paper_texts(page).mid(21, 8).join(u'_'),
                 "    TL  Alınmıştır._Kalan borcunuz   _2_   taksit olup,  toplam   _1.550,5_  TL'dir._En yakın ödeme "
                 "tarihiniz : _01.11.2026");
        for (const std::size_t i : {23U, 25U, 26U, 27U, 28U, 30U}) {  // follow the text before them
            QVERIFY(page[i].x > page[i - 1].x);
            QCOMPARE(page[i].y, page[i - 1].y);
            QCOMPARE(page[i].font.bold, i == 25 || i == 27 || i == 30);
        }
        for (std::size_t i = 0; i < half; ++i) {
            QCOMPARE(page[i + half].text, page[i].text);
            QCOMPARE(QPointF(page[i + half].x, page[i + half].y), QPointF(page[i].x, page[i].y + 8350));
        }
    }
};

static const Registered<ReceiptTest> registered;
#include "receipt_test.moc"
