// What a clerk reads in a grid, and clicks on it.
#pragma once

#include "platform/grid_view.h"

#include <QTest>

// The cells of a row from column `first` on, joined by "|".
inline QString grid_row(const GridView& grid, int row, int first = 0) {
    QStringList cells;
    for (int column = first; column < grid.columns(); ++column) cells << grid.text(row, column);
    return cells.join(u'|');
}

inline QStringList grid_rows(const GridView& grid, int from, int first = 0) {
    QStringList rows;
    for (int row = from; row < grid.rows(); ++row) rows << grid_row(grid, row, first);
    return rows;
}

inline void click_cell(const GridView& grid, int row, int column, bool twice = false) {
    const QPoint place = grid.viewport()->mapFrom(grid.parentWidget(), grid.cell_rect(row, column).center());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place);
}
