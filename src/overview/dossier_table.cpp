#include "overview/dossier_table.h"

#include "platform/paper_text.h"

#include <algorithm>

namespace {

constexpr double row_step = 250, further_line_step = 200;
constexpr double gap = 40;  // to the next column

double begin_of(const DossierColumn& column, const GridView& grid, int row) {
    return placed(column.placing, column.position, grid.text(row, column.source));
}

// What a text has before the heading and the content of the next column; amounts may begin before their heading.
double room(const DossierTable& table, std::size_t column, const GridView& grid, int row) {
    double end = table.right_edge;
    if (column + 1 < table.columns.size()) {
        const DossierColumn& next = table.columns[column + 1];
        end = std::min(next.x, begin_of(next, grid, row)) - gap;
    }
    return end - table.columns[column].position;
}

// The lines of a cell.
QStringList lines_of(DossierPages& pages, const DossierTable& table, std::size_t column, const GridView& grid,
                     int row) {
    const QString text = grid.text(row, table.columns[column].source);
    if (table.columns[column].placing != Placing::left) return {text};
    return broken_text(pages.paper(), text, room(table, column, grid, row));
}

}  // namespace

double placed(Placing placing, double position, const QString& text) {
    constexpr double twips_a_character = 90, digits = 5;
    const auto length = static_cast<double>(text.size());
    switch (placing) {
        case Placing::left:
            break;
        case Placing::base_minus_length:
            return position - twips_a_character * length;
        case Placing::five_digit:
            return position + (digits - length) * twips_a_character;
    }
    return position;
}

void open_section(DossierPages& pages, const DossierTable& table) {
    pages.begin_section();
    pages.paper().font(dossier_font(12, true));
    pages.print(DossierPages::left_edge, table.title);
    pages.paper().font(dossier_font());
    pages.down(500);
    for (const DossierColumn& column : table.columns) pages.print(column.x, column.heading);
    pages.rule(table.right_edge, 260);
    pages.down(300);
}

void print_row(DossierPages& pages, const DossierTable& table, const GridView& grid, int row) {
    std::vector<QStringList> cells;
    qsizetype lines = 1;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        cells.push_back(lines_of(pages, table, i, grid, row));
        lines = std::max(lines, cells.back().size());
    }
    const double further = static_cast<double>(lines - 1) * further_line_step;
    pages.keep_together(row_step + further);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        double y = pages.y();
        for (const QString& line : cells[i]) {
            pages.paper().move_to(begin_of(table.columns[i], grid, row), y);
            pages.paper().print(line);
            y += further_line_step;
        }
    }
    pages.next_line(row_step + further);
}
