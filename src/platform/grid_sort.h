// The generic ascending order of grid cells.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace grid_sort {

// The value of a cell that looks like a number, written the Turkish way ("1.250", "12,5", ",5") or plainly
// ("1250", "12.5"); a point before exactly three digits groups. Blanks around it do not count.
std::optional<double> number_of(QStringView cell);

// The places of the cells in ascending order, equal ones as they stood: numbers by value, then texts in
// Turkish order.
std::vector<int> ascending(const std::vector<QString>& cells);

}  // namespace grid_sort
