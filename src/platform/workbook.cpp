#include "platform/workbook.h"

#include "platform/paths.h"
#include "platform/workbook_package.h"
#include "platform/workbook_readers.h"

#include <QFile>

#include <algorithm>
#include <tuple>

namespace {

QByteArray bytes_of(const QString& name) {
    QFile file(paths::native(name));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("Dosya okunamadı.");
    if (file.size() > workbook::longest_part) throw workbook::too_large();
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) throw std::runtime_error("Dosya okunamadı.");
    if (bytes.isEmpty()) throw std::runtime_error("Dosya boş.");
    return bytes;
}

std::vector<workbook::Cell> cells_of_package(const QByteArray& file) {
    workbook::Package package(file);
    if (workbook::is_ods(package)) return workbook::read_ods(package);
    if (workbook::is_xlsx(package)) return workbook::read_xlsx(package);
    throw workbook::no_workbook();
}

std::vector<workbook::Cell> cells_of(const QByteArray& file) {
    if (workbook::is_package(file)) return cells_of_package(file);
    if (workbook::is_compound_file(file)) return workbook::read_compound_file(file);
    if (workbook::is_cell_records(file)) return workbook::read_cell_records(file);
    return workbook::read_csv(file);
}

}  // namespace

Workbook Workbook::open(const QString& name) {
    try {
        return Workbook(cells_of(bytes_of(name)));
    } catch (const std::runtime_error& refusal) {
        throw std::runtime_error((name + QStringLiteral(": ")).toStdString() + refusal.what());
    }
}

QString Workbook::text(int row, int column) const {
    const auto place = std::tie(row, column);
    const auto found = std::ranges::lower_bound(
        cells_, place, std::ranges::less(), [](const workbook::Cell& cell) { return std::tie(cell.row, cell.column); });
    if (found == cells_.end() || found->row != row || found->column != column) return {};
    return found->text;
}

int Workbook::rows() const {
    return cells_.empty() ? 0 : cells_.back().row;
}
