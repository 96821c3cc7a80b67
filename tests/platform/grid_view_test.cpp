#include "platform/grid_view.h"

#include "support/run_all.h"

#include <QHeaderView>
#include <QSignalSpy>

#include <stdexcept>

namespace {

// 20 lessons under a heading, a hidden code column, one fixed column with the name.
class Lessons : public GridView {
public:
    Lessons() {
        set_fixed(1, 2);
        set_widths({1, 2000, 850, 850});
        set_rows(21);
        set_row(0, {"", "Ders", "İzinli", "İzinsiz"});
        for (int row = 1; row < rows(); ++row) set_row(row, {QStringLiteral("D%1").arg(row), QStringLiteral("Ders")});
        resize(400, 200);
        show();
    }

    // In the viewport, whose events are the grid's.
    QPoint middle(int row, int column) {
        return viewport()->mapFrom(this, mapFromParent(cell_rect(row, column).center()));
    }
};

QList<QList<QVariant>> cells(std::initializer_list<std::pair<int, int>> list) {
    QList<QList<QVariant>> result;
    for (const auto& [row, column] : list) result.append({row, column});
    return result;
}

}  // namespace

class GridViewTest : public QObject {
    Q_OBJECT

private slots:
    void heading_and_body_are_one_count() {
        GridView grid;
        grid.set_columns(2);
        grid.set_fixed(1, 0);
        QCOMPARE(grid.rows(), 1);
        grid.set_rows(3);
        grid.set_row(0, {"Vade", "Tutar"});
        grid.set_text(2, 1, "1.250");
        QCOMPARE(grid.model()->rowCount(), 2);
        QCOMPARE(grid.model()->headerData(1, Qt::Horizontal).toString(), "Tutar");
        QCOMPARE(grid.model()->index(1, 1).data().toString(), "1.250");
        for (const auto& missing : std::initializer_list<std::function<void()>>{
                 [&] { grid.text(3, 0); }, [&] { grid.set_text(0, 2, "x"); }, [&] { grid.back_color(3, 0); },
                 [&] { grid.set_current(0, 0); }, [&] { grid.sort_by(2); }})
            QVERIFY_EXCEPTION_THROWN(missing(), std::out_of_range);

        grid.set_back_color(2, 1, Qt::yellow);
        grid.clear();
        QCOMPARE(grid.rows(), 3);
        QCOMPARE(grid.text(0, 1), "");
        QVERIFY(!grid.back_color(2, 1).isValid());
        grid.set_rows(0);
        QCOMPARE(grid.rows(), 1);
    }

    void clicks_of_the_mouse() {
        Lessons grid;
        QSignalSpy clicked(&grid, &GridView::cell_clicked), pressed(&grid, &GridView::cell_pressed),
            twice(&grid, &GridView::cell_double_clicked), fixed(&grid, &GridView::fixed_clicked);
        QWidget* body = grid.viewport();
        QTest::mouseClick(body, Qt::LeftButton, {}, grid.middle(3, 2));
        QCOMPARE(clicked, cells({{3, 2}}));
        QCOMPARE(grid.row(), 3);
        QCOMPARE(grid.column(), 2);

        // Dragged to another cell and let go there.
        QTest::mousePress(body, Qt::LeftButton, {}, grid.middle(4, 2));
        QMouseEvent move(QEvent::MouseMove, grid.middle(5, 3), body->mapToGlobal(grid.middle(5, 3)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(body, &move);
        QTest::mouseRelease(body, Qt::LeftButton, {}, grid.middle(5, 2));
        // The other button, a fixed column, the heading, the empty ground.
        QTest::mouseClick(body, Qt::RightButton, {}, grid.middle(2, 3));
        QTest::mouseClick(body, Qt::LeftButton, {}, grid.middle(2, 1));
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(200, 5));
        QTest::mouseClick(body, Qt::LeftButton, {}, QPoint(body->width() - 2, 5));
        QCOMPARE(clicked, cells({{3, 2}}));
        QCOMPARE(pressed, cells({{3, 2}, {4, 2}}));
        QCOMPARE(fixed, cells({{2, 1}}));
        QCOMPARE(grid.row(), 2);
        QCOMPARE(grid.column(), 2);

        clicked.clear();
        QTest::mouseClick(body, Qt::LeftButton, {}, grid.middle(2, 3));
        QTest::mouseDClick(body, Qt::LeftButton, {}, grid.middle(2, 3));
        QTest::mouseRelease(body, Qt::LeftButton, {}, grid.middle(2, 3));
        QCOMPARE(twice, cells({{2, 3}}));
        QCOMPARE(clicked, cells({{2, 3}}));
    }

    void keys_on_the_current_cell() {
        Lessons grid;
        QSignalSpy clicked(&grid, &GridView::cell_clicked);
        grid.set_current(2, 2);
        QTest::keyClick(&grid, Qt::Key_Down);
        QTest::keyClick(&grid, Qt::Key_D);
        QCOMPARE(clicked.count(), 0);
        QTest::keyClick(&grid, Qt::Key_Left);  // the name is a heading
        QTest::keyClick(&grid, Qt::Key_Space);
        QTest::keyClick(&grid, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(clicked, cells({{3, 2}, {3, 2}}));
    }

    void current_cell_stays_in_range() {
        Lessons grid;
        QCOMPARE(grid.row(), -1);
        grid.set_current(20, 3);
        QVERIFY(grid.geometry().contains(grid.cell_rect(20, 3)));
        grid.set_rows(6);
        QCOMPARE(grid.row(), 5);
        QCOMPARE(grid.column(), 3);
        {
            const GridView::Filling filling(grid);
            grid.set_rows(1);
            grid.set_rows(11);
            grid.set_current(8, 2);
        }
        QCOMPARE(grid.row(), 8);
        grid.set_rows(0);
        grid.set_rows(11);
        QCOMPARE(grid.row(), -1);
    }

    void sorted_by_value_and_alphabet() {
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

    void sorted_rows_move_whole() {
        GridView grid;
        grid.set_widths({500, 700, 1});
        grid.set_fixed(1, 0);
        grid.set_rows(5);
        int next = 0;
        for (const QStringList& row : std::initializer_list<QStringList>{
                 {"Sınıf", "No", "z"}, {"12B", "4", "a"}, {"12A", "3", "b"}, {"12B", "2", "c"}, {"12A", "1", "d"}})
            grid.set_row(next++, row);
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

static const Registered<GridViewTest> registered;
#include "grid_view_test.moc"
