// What the readers of the workbook formats share: the sheet that they fill, its limits and the words of their refusals.
#pragma once

#include <QString>

#include <cstdint>
#include <stdexcept>
#include <vector>

namespace workbook {

constexpr std::int64_t most_rows = 1'048'576, most_columns = 16'384;
constexpr qsizetype longest_text = 32'767;                // of one cell; what is longer is cut
constexpr std::int64_t longest_part = 128 * 1024 * 1024;  // bytes of a file, and of a part of it once unpacked

struct Cell {
    int row, column;  // from 1
    QString text;
};

// Collects the cells of a sheet in any order. Throws too_large() where a file stands for more than fits.
class Sheet {
public:
    // That it holds at most so many cells: spares the moves of a sheet that grows.
    void expect(qsizetype cells) { cells_.reserve(static_cast<std::size_t>(cells)); }
    void add(std::int64_t row, std::int64_t column, const QString& text);
    // A text that several cells show: counted once by count(), then added to each of them.
    void count(const QString& text);
    void add_counted(std::int64_t row, std::int64_t column, const QString& text);

    // By row and column; of two cells at one place the later one stays.
    std::vector<Cell> take();

private:
    std::vector<Cell> cells_;
    std::int64_t texts_ = 0, characters_ = 0;
};

QString text_of(double number);  // 15 significant digits, no exponent
QString text_of(bool truth);

std::runtime_error damaged();
std::runtime_error encrypted();
std::runtime_error too_large();
std::runtime_error no_workbook();
std::runtime_error no_table();  // a sheet is active that holds no cells

}  // namespace workbook
