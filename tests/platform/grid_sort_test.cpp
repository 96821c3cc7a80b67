#include "control_tests.h"
#include "platform/grid_view.h"

#include <QTest>

void GridSortTest::order_data() {
    QTest::addColumn<QStringList>("cells");
    QTest::addColumn<QStringList>("sorted");
    const auto row = [](const char* name, const QStringList& cells, const QStringList& sorted) {
        QTest::newRow(name) << cells << sorted;
    };
    row("numbers by value", {"1250", "9", "0100", "-3", "10"}, {"-3", "9", "10", "0100", "1250"});
    row("a point groups", {"1.250", "999", "12,5", ",5", "1.250,5", "1.250.000"},
        {",5", "12,5", "999", "1.250", "1.250,5", "1.250.000"});
    row("a plain decimal", {"12.5", "12", "13"}, {"12", "12.5", "13"});
    row("blanks around", {" 12 ", "3", "\t4"}, {"3", "\t4", " 12 "});
    row("numbers before texts", {"12A", "", "7", "3 taksit", "1,2,3", "+5"},
        {"+5", "7", "", "1,2,3", "12A", "3 taksit"});
    row("Turkish texts", {"ŞULE", "SUAT", "İPEK", "IRMAK", "ÇAĞLA", "CAN", "ipek", "DENİZ"},
        {"CAN", "ÇAĞLA", "DENİZ", "IRMAK", "İPEK", "ipek", "SUAT", "ŞULE"});
}

void GridSortTest::order() {
    QFETCH(QStringList, cells);
    QFETCH(QStringList, sorted);
    GridView grid;
    grid.set_columns(1);
    grid.set_rows(static_cast<int>(cells.size()));
    for (int row = 0; row < grid.rows(); ++row) grid.set_text(row, 0, cells[row]);
    grid.sort_by(0);
    QStringList result;
    for (int row = 0; row < grid.rows(); ++row) result += grid.text(row, 0);
    QCOMPARE(result, sorted);
}

void GridSortTest::rows_move_whole() {
    GridView grid;
    grid.set_widths({500, 700, 1});
    grid.set_fixed(1, 0);
    grid.set_rows(5);
    grid.set_row(0, {"Sınıf", "No", "z"});
    grid.set_row(1, {"12B", "4", "a"});
    grid.set_row(2, {"12A", "3", "b"});
    grid.set_row(3, {"12B", "2", "c"});
    grid.set_row(4, {"12A", "1", "d"});
    grid.set_back_color(1, 1, Qt::yellow);
    grid.set_back_color(0, 1, Qt::blue);
    grid.set_current(2, 0);
    grid.sort_by(0);
    QString order;
    for (int row = 0; row < 5; ++row) order += grid.text(row, 2);
    QCOMPARE(order, "zbdac");  // equal classes stay as they stood
    QCOMPARE(grid.text(3, 1), "4");
    QCOMPARE(grid.back_color(3, 1), QColor(Qt::yellow));
    QVERIFY(!grid.back_color(1, 1).isValid());
    QCOMPARE(grid.back_color(0, 1), QColor(Qt::blue));
    QCOMPARE(grid.row(), 2);
}
