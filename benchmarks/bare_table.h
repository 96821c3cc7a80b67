// An ordinary table view on the least model of texts.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include <string>
#include <vector>

namespace bench {

class BareTable : private QAbstractTableModel {
public:
    explicit BareTable(int columns) : columns_(columns) { view_.setModel(this); }

    int rows() const { return rows_; }
    // All cells are new. The view is told here and looks at what it shows when it paints.
    void set_rows(int rows) {
        beginResetModel();
        rows_ = rows;
        cells_.assign(static_cast<std::size_t>(rows * columns_), QString());
        endResetModel();
    }
    void set(int row, int column, const QString& text) { cells_[at(row, column)] = text; }
    void set(int row, int column, const std::string& utf8) { set(row, column, QString::fromStdString(utf8)); }

private:
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns_; }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(cells_[at(index.row(), index.column())]) : QVariant();
    }
    std::size_t at(int row, int column) const { return static_cast<std::size_t>(row * columns_ + column); }

    const int columns_;
    int rows_ = 0;
    std::vector<QString> cells_;
    QTableView view_;
};

}  // namespace bench
