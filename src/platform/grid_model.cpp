#include "platform/grid_model.h"

#include "platform/grid_sort.h"

#include <QFont>

#include <algorithm>
#include <stdexcept>
#include <string>

std::size_t GridModel::at(int row, int column) const {
    if (row < 0 || row >= rows_ || column < 0 || column >= columns_)
        throw std::out_of_range("Tabloda " + std::to_string(row) + ". satır, " + std::to_string(column) +
                                ". sütun yok.");
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

std::uint64_t GridModel::key(int row, int column) {
    return static_cast<std::uint64_t>(row) << 32 | static_cast<std::uint32_t>(column);
}

QVariant GridModel::heading_of_fixed(int role) const {
    if (role == Qt::BackgroundRole && fixed_back_.isValid()) return fixed_back_;
    if (role == Qt::ForegroundRole && fixed_fore_.isValid()) return fixed_fore_;
    return {};
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + fixed_rows_, column = index.column();
    if (!index.isValid() || row >= rows_ || column >= columns_) return {};
    if (role == Qt::DisplayRole) return text(row, column);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignments_[static_cast<std::size_t>(column)] | Qt::AlignVCenter);
    if (formats_.empty() && column >= fixed_columns_ && !cell_back_.isValid()) return {};
    const Format own = format(row, column);
    const QColor back = own.back.isValid() || column < fixed_columns_ ? own.back : cell_back_;
    if (role == Qt::BackgroundRole && back.isValid()) return back;
    if (role == Qt::ForegroundRole) {
        if (own.fore.isValid()) return own.fore;
        // A cell's own colour is light: in a dark scheme the scheme's own light text could not be read on it.
        if (back.isValid()) return QColor(Qt::black);
    }
    if (role == Qt::FontRole && own.bold) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return column < fixed_columns_ ? heading_of_fixed(role) : QVariant();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || fixed_rows_ == 0 || section < 0 || section >= columns_) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return text(0, section);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(alignments_[static_cast<std::size_t>(section)] | Qt::AlignVCenter);
        case Qt::BackgroundRole: {
            const QColor back = format(0, section).back;
            return back.isValid() ? QVariant(back) : heading_of_fixed(role);
        }
        case Qt::ForegroundRole: {
            const QColor fore = format(0, section).fore;
            return fore.isValid() ? QVariant(fore) : heading_of_fixed(role);
        }
        default:
            return {};
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid() || index.column() < fixed_columns_) return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

void GridModel::set_fixed(int rows, int columns) {
    beginResetModel();
    fixed_rows_ = std::clamp(rows, 0, 1);
    fixed_columns_ = std::max(columns, 0);
    store_rows(std::max(rows_, fixed_rows_));
    shown_rows_ = rows_ - fixed_rows_;
    endResetModel();
}

void GridModel::set_fixed_colors(const QColor& back, const QColor& fore) {
    fixed_back_ = back;
    fixed_fore_ = fore;
    all_changed();
}

void GridModel::set_cell_color(const QColor& back) {
    cell_back_ = back;
    all_changed();
}

void GridModel::store_rows(int rows) {
    if (rows < rows_) std::erase_if(formats_, [&](const auto& cell) { return cell.first >= key(rows, 0); });
    rows_ = rows;
    ++revision_;
    cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns_));
}

void GridModel::set_rows(int rows) {
    rows = std::max(rows, fixed_rows_);
    const int body = rows - fixed_rows_;
    if (body < shown_rows_) {
        beginRemoveRows({}, body, shown_rows_ - 1);
        store_rows(rows);
        shown_rows_ = body;
        endRemoveRows();
    } else if (held_ > 0) {
        store_rows(rows);
    } else if (body > shown_rows_) {
        beginInsertRows({}, shown_rows_, body - 1);
        store_rows(rows);
        shown_rows_ = body;
        endInsertRows();
    }
}

void GridModel::publish_rows() {
    const int body = rows_ - fixed_rows_;
    if (body <= shown_rows_) return;
    beginInsertRows({}, shown_rows_, body - 1);
    shown_rows_ = body;
    endInsertRows();
}

void GridModel::set_columns(int columns) {
    columns = std::max(columns, 0);
    if (columns == columns_) return;
    const bool more = columns > columns_;
    if (more)
        beginInsertColumns({}, columns_, columns - 1);
    else
        beginRemoveColumns({}, columns, columns_ - 1);
    std::vector<QString> cells(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns));
    for (int row = 0; row < rows_; ++row)
        for (int column = 0; column < std::min(columns, columns_); ++column)
            cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                  static_cast<std::size_t>(column)] = std::move(cells_[at(row, column)]);
    cells_ = std::move(cells);
    std::erase_if(formats_, [&](const auto& cell) { return static_cast<int>(cell.first & 0xFFFFFFFFU) >= columns; });
    alignments_.resize(static_cast<std::size_t>(columns), Qt::AlignLeft);
    columns_ = columns;
    ++revision_;
    if (more)
        endInsertColumns();
    else
        endRemoveColumns();
}

void GridModel::set_alignment(int column, Qt::Alignment alignment) {
    alignments_.at(static_cast<std::size_t>(column)) = alignment & Qt::AlignHorizontal_Mask;
    all_changed();
}

void GridModel::set_text(int row, int column, const QString& text) {
    QString& cell = cells_[at(row, column)];
    if (cell == text) return;
    cell = text;
    changed(row, column);
}

void GridModel::clear() {
    std::fill(cells_.begin(), cells_.end(), QString());
    formats_.clear();
    all_changed();
}

GridModel::Format GridModel::format(int row, int column) const {
    at(row, column);
    const auto found = formats_.find(key(row, column));
    return found == formats_.end() ? Format() : found->second;
}

void GridModel::set_format(int row, int column, const Format& format) {
    at(row, column);
    if (!format.back.isValid() && !format.fore.isValid() && !format.bold)
        formats_.erase(key(row, column));
    else
        formats_[key(row, column)] = format;
    changed(row, column);
}

void GridModel::sort_by(int column) {
    if (column < 0 || column >= columns_) at(0, column);
    std::vector<QString> keys;
    keys.reserve(static_cast<std::size_t>(rows_));
    for (int row = fixed_rows_; row < rows_; ++row) keys.push_back(text(row, column));
    const std::vector<int> order = grid_sort::ascending(keys);

    std::vector<QString> cells = cells_;
    std::unordered_map<std::uint64_t, Format> formats;
    for (int to = fixed_rows_; to < rows_; ++to) {
        const int from = order[static_cast<std::size_t>(to - fixed_rows_)] + fixed_rows_;
        for (int each = 0; each < columns_; ++each) {
            cells[at(to, each)] = std::move(cells_[at(from, each)]);
            if (formats_.empty()) continue;
            if (const auto found = formats_.find(key(from, each)); found != formats_.end())
                formats[key(to, each)] = found->second;
        }
    }
    for (int each = 0; each < columns_ && fixed_rows_ > 0; ++each)
        if (const auto found = formats_.find(key(0, each)); found != formats_.end()) formats.insert(*found);
    cells_ = std::move(cells);
    formats_ = std::move(formats);
    all_changed();
}

bool GridModel::release() {
    if (--held_ > 0) return false;
    if (cells_.capacity() > cells_.size() + cells_.size() / 4) cells_.shrink_to_fit();
    publish_rows();
    if (changed_) all_changed();
    return true;
}

void GridModel::changed(int row, int column) {
    ++revision_;
    if (held_ > 0)
        changed_ = true;
    else if (row < fixed_rows_)
        emit headerDataChanged(Qt::Horizontal, column, column);
    else
        emit dataChanged(index(row - fixed_rows_, column), index(row - fixed_rows_, column));
}

void GridModel::all_changed() {
    ++revision_;
    changed_ = held_ > 0;
    if (changed_ || columns_ == 0) return;
    if (fixed_rows_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    if (shown_rows_ > 0) emit dataChanged(index(0, 0), index(shown_rows_ - 1, columns_ - 1));
}
