// A section of a dossier as a table over the columns of a grid.
#pragma once

#include "overview/dossier_pages.h"
#include "platform/grid_view.h"

#include <vector>

// A number set right begins at a place that its length tells: no text is measured, as on all papers of the office.
enum class Placing {
    left,               // at the position itself
    base_minus_length,  // 90 twips before the base a character
    five_digit,         // 90 twips behind the base for each character that five digits have more
};
double placed(Placing placing, double position, const QString& text);

struct DossierColumn {
    QString heading;
    double x;         // of the heading; twips
    int source;       // column of the grid
    Placing placing;  // of the content
    double position;  // of the content, or its base
};

struct DossierTable {
    QString title;
    double right_edge;
    std::vector<DossierColumn> columns;  // from left to right
};

// Title, headings and the line under them, on the next page where this one is full.
void open_section(DossierPages& pages, const DossierTable& table);

// A row of the grid. Text that is wider than its column goes on under itself and makes the row higher.
void print_row(DossierPages& pages, const DossierTable& table, const GridView& grid, int row);
