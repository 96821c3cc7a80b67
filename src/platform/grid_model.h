// The cells of a GridView: flat texts, and colours only where a cell has its own.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QString>

#include <cstdint>
#include <unordered_map>
#include <vector>

// Speaks of rows as GridView does, fixed ones included; to the view it shows the body rows alone and gives the
// heading as header data. A row or column out of range throws std::out_of_range.
class GridModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : shown_rows_; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    void set_fixed(int rows, int columns);
    int fixed_rows() const { return fixed_rows_; }
    int fixed_columns() const { return fixed_columns_; }
    void set_fixed_colors(const QColor& back, const QColor& fore);
    void set_cell_color(const QColor& back);

    int rows() const { return rows_; }
    void set_rows(int rows);
    int columns() const { return columns_; }
    void set_columns(int columns);
    void set_alignment(int column, Qt::Alignment alignment);

    const QString& text(int row, int column) const { return cells_[at(row, column)]; }
    void set_text(int row, int column, const QString& text);
    void clear();

    struct Format {
        QColor back, fore;
        bool bold = false;
    };
    // The cell's own format; the plain one where it has none.
    Format format(int row, int column) const;
    void set_format(int row, int column, const Format& format);

    void sort_by(int column);

    // Grows with every change of rows, texts, order and formats.
    std::uint64_t revision() const { return revision_; }

    // While held, new rows and changed cells are kept from the view; a lost row is told at once.
    void hold() { ++held_; }
    // True when this was the last hold.
    bool release();
    // Tells the view of the new rows even while held.
    void publish_rows();

private:
    std::size_t at(int row, int column) const;
    static std::uint64_t key(int row, int column);
    void store_rows(int rows);
    void changed(int row, int column);
    void all_changed();
    QVariant heading_of_fixed(int role) const;

    std::vector<QString> cells_;  // row by row
    std::unordered_map<std::uint64_t, Format> formats_;
    std::vector<Qt::Alignment> alignments_;
    QColor fixed_back_, fixed_fore_, cell_back_;
    int rows_ = 0, columns_ = 0, shown_rows_ = 0;
    int fixed_rows_ = 0, fixed_columns_ = 0;
    int held_ = 0;
    std::uint64_t revision_ = 0;
    bool changed_ = false;
};
