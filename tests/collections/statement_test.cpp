#include "collections_tests.h"
#include "till.h"

#include <QTest>

void StatementTest::open_instalments_stand_in_order_of_their_dates() {
    TillFiles files;
    files.instalment("20261201", 1250.5);
    files.instalment("20261001", 1000, 400);
    files.instalment("20261101", 500, 500);
    files.add("Odeme",
              {{"ONO", 1250}, {"VADE", "20270101"}, {"TUTAR", 300}, {"ODENEN", 0}, {"ACK", "servis"}, {"ODSEK", 6}});
    files.instalment("20260901", 70, 0, 1249);
    files.instalment("20260901", 80, 0, 1251);
    Till till;
    till.pick();

    const GridView& grid = *till.kurvo.FTahsil_Tablo2;
    QStringList shown;
    for (int row = 0; row < grid.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.columns(); ++column) cells << grid.text(row, column);
        shown << cells.join(u'|');
    }
    QCOMPARE(shown, QStringList({" |01.10.2026|600|Nakit| | |", " |01.12.2026|1.250,5|Nakit| | |",
                                 " |01.01.2027|300|İptal|servis||"}));
    QCOMPARE(QStringList({till.kurvo.TTUTAR->text(), till.kurvo.TODENEN->text(), till.kurvo.TBORC->text()}),
             QStringList({"3050.5", "900", "2.150,5"}));
}
