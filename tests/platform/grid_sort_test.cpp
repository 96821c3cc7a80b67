#include "platform/grid_view.h"
#include "support/run_all.h"

class GridSortTest : public QObject {
    Q_OBJECT

private slots:
    void order() {
        // Blanks around a number, a point that groups and one that does not, numbers before texts, Turkish letters.
        const QStringList sorted_columns[]{{"-3", "3", "\t4", "9", " 12 ", "0100", "1250"},
                                           {",5", "12,5", "999", "1.250", "1.250,5", "1.250.000"},
                                           {"12", "12.5", "13"},
                                           {"+5", "7", "", "1,2,3", "12A", "3 taksit"},
                                           {"CAN", "ÇAĞLA", "DENİZ", "IRMAK", "İPEK", "SUAT", "ŞULE"}};
        for (const QStringList& sorted : sorted_columns) {
            const int count = static_cast<int>(sorted.size());
            GridView grid;
            grid.set_columns(1);
            grid.set_rows(count);
            for (int row = 0; row < count; ++row) grid.set_text(row, 0, sorted[(row * 5 + 2) % count]);
            grid.sort_by(0);
            QStringList result;
            for (int row = 0; row < count; ++row) result += grid.text(row, 0);
            QCOMPARE(result, sorted);
        }
    }

    void rows_move_whole() {
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
};

static const Registered<GridSortTest> registered;
#include "grid_sort_test.moc"
