#include "collections_tests.h"
#include "platform/clock.h"
#include "till.h"

#include <QTest>

namespace {

using Operation = PrintSurface::Operation;

constexpr double upper = 450, lower = 8800;
constexpr double behind = -1;     // x: follows the text before it
constexpr double next_line = -1;  // y: one line of 10 points below

struct Expected {
    double x, y;  // y from the top of the copy
    double points;
    const char* style;  // b bold, i italic, - a line to 10500
    const char* text;
};

// 1.200 on two instalments, of the second one only 200 of 500.
const std::vector<Expected> part_payment{
    {500, 0, 14, "bi", "ÖZEL IŞIK"},
    {4000, 600, 12, "b", "TAHSİLAT MAKBUZU"},
    {8500, 100, 10, "", "Tarih            :  05.10.2026"},
    {8500, 400, 10, "", "Makbuz No :  1"},
    {1000, 1400, 12, "", "Öğrenci No : 1250"},
    {1000, 1750, 12, "", "Adı Soyadı   : AYŞE NUR YILDIRIM"},
    {1000, 2300, 10, "b", "Vade Tarihi"},
    {2500, 2300, 10, "b", "Şekli"},
    {4700, 2300, 10, "b", "Tutar"},
    {6000, 2300, 10, "b", "Açıklama"},
    {1000, 2550, 0, "-", ""},
    {1000, 2700, 10, "", "01.10.2026"},
    {2500, 2700, 10, "", "Nakit"},
    {4910, 2700, 10, "", "1000"},
    {6000, 2700, 10, "", " "},
    {1000, 2950, 10, "", "01.11.2026"},
    {2500, 2950, 10, "", "Nakit"},
    {5000, 2950, 10, "", "200"},
    {6000, 2950, 10, "", " "},
    {1000, 3350, 0, "-", ""},
    {1000, 3500, 10, "", "Toplam Alınan :"},
    {4820, 3500, 10, "", "1.200"},
    {1000, 4200, 10, "b", "Bin İkiyüz"},
    {behind, 4200, 10, "", "    TL  Alınmıştır."},
    {1000, 4800, 10, "", "Kalan borcunuz   "},
    {behind, 4800, 10, "b", "2"},
    {behind, 4800, 10, "", "   taksit olup,  toplam   "},
    {behind, 4800, 10, "b", "1.550,5"},
    {behind, 4800, 10, "", "  TL'dir."},
    {1000, next_line, 10, "", "En yakın ödeme tarihiniz : "},
    {behind, next_line, 10, "b", "01.11.2026"},
};

QString style_of(const Operation& operation) {
    if (operation.kind == Operation::Kind::line) return QStringLiteral("-");
    return QString(operation.font.bold ? "b" : "") + (operation.font.italic ? "i" : "");
}

void compare_copy(const Operation* printed, double top) {
    PrintSurface measure({}, {});
    double y = 0;
    for (const Expected& expected : part_payment) {
        if (expected.y != next_line)
            y = top + expected.y;
        else if (expected.x != behind)
            y += measure.line_height();
        QCOMPARE(printed->text, QString::fromUtf8(expected.text));
        QCOMPARE(style_of(*printed), QString(expected.style));
        QCOMPARE(printed->y, y);
        if (expected.x == behind)
            QVERIFY(printed->x > (printed - 1)->x);
        else
            QCOMPARE(printed->x, expected.x);
        if (printed->kind == Operation::Kind::line) {
            QCOMPARE(QPointF(printed->x2, printed->y2), QPointF(10500, y));
            QCOMPARE(printed->width, 2);
        } else {
            QCOMPARE(printed->font.points, expected.points);
        }
        ++printed;
    }
}

}  // namespace

void ReceiptTest::two_copies_on_one_sheet() {
    const clock_source::Override clock([] { return QDateTime(QDate(2026, 10, 5), QTime(9, 0)); });
    School school;
    school.instalment("20261001", 1000);
    school.instalment("20261101", 500);
    school.instalment("20261201", 1250.5);
    Till till;
    till.kurvo.CheckKad->setChecked(true);
    till.pick();
    till.collect("1200", till.kurvo.MOP);

    QCOMPARE(school.papers.size(), std::size_t(1));
    QCOMPARE(school.papers[0].pages.size(), std::size_t(1));
    const PrintSurface::Page& page = school.papers[0].pages[0];
    QCOMPARE(page.size(), 2 * part_payment.size());
    compare_copy(page.data(), upper);
    compare_copy(page.data() + part_payment.size(), lower);
}

void ReceiptTest::last_payment_says_thanks() {
    School school;
    school.instalment("20261001", 21000);
    Till till;
    till.kurvo.CheckKad->setChecked(false);
    till.kurvo.ComboKASATIP->setCurrentIndex(1);
    till.pick();
    till.collect("21000", till.kurvo.MOP);

    const PrintSurface::Page& page = school.papers.at(0).pages.at(0);
    QStringList texts;
    for (const Operation& operation : page) texts << operation.text;
    QVERIFY(!texts.contains("ÖZEL IŞIK"));
    QCOMPARE(texts.count("Borcunuz bitmiştir,  teşekkür ederiz."), 2);
    QCOMPARE(texts.count("YirmiBirBin "), 2);
    QCOMPARE(texts.count("    EURO  Alınmıştır."), 2);
    QVERIFY(page.back().font.italic && !page.back().font.bold);
    QCOMPARE(page.back().x, 1000.0);
    QCOMPARE(page.back().y, 8800.0 + 2700 + 250 + 50 + 250 + 700 + 600);
}
