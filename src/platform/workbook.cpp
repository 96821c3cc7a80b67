#include "platform/workbook.h"

#include "platform/paths.h"
#include "platform/workbook_package.h"
#include "platform/workbook_readers.h"

#include <QFile>

#include <algorithm>
#include <span>
#include <utility>

namespace {

constexpr qint64 bytes_that_tell_the_kind = 8;

void require_read(const QFile& file) {
    if (file.error() != QFileDevice::NoError) throw std::runtime_error("Dosya okunamadı.");
}

workbook::Table sheet_of_package(const QByteArray& file) {
    workbook::Package package(file);
    if (workbook::is_ods(package)) return workbook::read_ods(package);
    if (workbook::is_xlsx(package)) return workbook::read_xlsx(package);
    throw workbook::no_workbook();
}

workbook::Table sheet_of(QFile& file) {
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("Dosya okunamadı.");
    if (file.size() > workbook::longest_part) throw workbook::too_large();
    const QByteArray first = file.peek(bytes_that_tell_the_kind);
    require_read(file);
    if (first.isEmpty()) throw std::runtime_error("Dosya boş.");
    if (workbook::is_compound_file(first)) return workbook::read_compound_file(file.fileName());
    if (workbook::is_cell_records(first)) return workbook::read_cell_records(file.fileName());
    const QByteArray whole = file.readAll();
    require_read(file);
    return workbook::is_package(whole) ? sheet_of_package(whole) : workbook::read_csv(whole);
}

}  // namespace

Workbook Workbook::open(const QString& name) {
    try {
        QFile file(paths::native(name));
        return Workbook(sheet_of(file));
    } catch (const std::runtime_error& refusal) {
        throw std::runtime_error((name + QStringLiteral(": ")).toStdString() + refusal.what());
    }
}

Workbook::Workbook(workbook::Table table) : table_(std::move(table)) {
    for (const workbook::Cell& cell : table_.cells)
        if (cell.row >= first_cells_.size())
            first_cells_.resize(cell.row + 1, static_cast<std::uint32_t>(&cell - table_.cells.constData()));
    first_cells_.push_back(static_cast<std::uint32_t>(table_.cells.size()));
}

QString Workbook::text(int row, int column) const {
    if (row < 1 || row > rows()) return {};
    const auto* of_row = &first_cells_[static_cast<std::size_t>(row)];
    const workbook::Cell* const cells = table_.cells.constData();
    const std::span<const workbook::Cell> row_cells(cells + of_row[0], cells + of_row[1]);
    const auto found = std::ranges::lower_bound(row_cells, column, std::ranges::less(), &workbook::Cell::column);
    if (found == row_cells.end() || found->column != column) return {};
    return table_.letters.mid(found->begin, found->length);
}

int Workbook::rows() const {
    return table_.cells.isEmpty() ? 0 : static_cast<int>(table_.cells.last().row);
}
