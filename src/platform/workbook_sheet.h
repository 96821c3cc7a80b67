// What the readers of the workbook formats share: the sheet that they fill, its limits and the words of their refusals.
#pragma once

#include <QList>
#include <QString>

#include <cstdint>
#include <stdexcept>

namespace workbook {

constexpr std::int64_t most_rows = 1'048'576, most_columns = 16'384;
constexpr qsizetype longest_text = 32'767;                // of one cell; what is longer is cut
constexpr std::int64_t longest_part = 128 * 1024 * 1024;  // bytes of a file, and of a part of it once unpacked

// Where a text stands among the letters of a table. Cells may share one.
struct Text {
    std::uint32_t begin = 0;
    std::uint16_t length = 0;
};

struct Cell {
    std::uint32_t row;  // from 1, as the columns
    std::uint16_t column, length;
    std::uint32_t begin;  // of its text
};

// Small, since the first touch of fresh memory costs more than the reading of what goes there.
struct Table {
    QList<Cell> cells;  // by row and column, each place once, none of them empty
    QString letters;
};

// Collects the cells of a sheet in any order. Throws too_large() where a file stands for more than fits.
class Sheet {
public:
    // That it holds at most so many cells: spares the moves of a sheet that grows.
    void expect(qsizetype cells) { table_.cells.reserve(cells); }
    // A text that cells may show, cut where it is too long.
    Text keep(QStringView text);
    void add(std::int64_t row, std::int64_t column, Text text);
    void add(std::int64_t row, std::int64_t column, QStringView text) { add(row, column, keep(text)); }

    // Of two cells at one place the later one stays.
    Table take();

private:
    Table table_;
    std::int64_t texts_ = 0;
};

QString text_of(double number);  // 15 significant digits, no exponent
QString text_of(bool truth);

std::runtime_error damaged();
std::runtime_error encrypted();
std::runtime_error too_large();
std::runtime_error no_workbook();
std::runtime_error no_table();  // a sheet is active that holds no cells

}  // namespace workbook
