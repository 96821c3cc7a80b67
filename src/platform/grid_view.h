// A grid of text cells addressed by row and column, with an optional heading row and columns in twips.
#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <cstdint>
#include <memory>
#include <vector>

class GridModel;

// Rows and columns count from 0 and include the fixed ones: with one fixed row, row 0 is the heading, which
// stands above the body and does not scroll, and the body begins at row 1. Fixed columns look like headings.
// A column of width 1 is hidden; its cells are read and written like any other.
class GridView : public QTableView {
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);
    ~GridView() override;

    // A row or column that does not exist throws std::out_of_range in all that follows.

    // At most one fixed row.
    void set_fixed(int rows, int columns);
    int fixed_rows() const;
    int fixed_columns() const;
    // Colours of the heading row and of the fixed columns; without them they look as headings of the style.
    void set_fixed_colors(const QColor& back, const QColor& fore);
    // Of body cells that have no colour of their own.
    void set_cell_color(const QColor& back);
    // Of the current row.
    void set_selection_colors(const QColor& back, const QColor& fore);

    int rows() const;
    void set_rows(int rows);  // new cells are empty; at least the fixed rows stay
    int columns() const;
    void set_columns(int columns);
    void set_widths(const std::vector<int>& twips);  // also sets the number of columns
    void set_alignment(int column, Qt::Alignment alignment);
    // The column that takes what the view is wider than its columns; -1 for none.
    void set_stretch_column(int column);

    QString text(int row, int column) const;
    void set_text(int row, int column, const QString& text);
    void set_row(int row, const QStringList& texts, int first_column = 0);
    // Empties all texts and takes all colours back, the heading row's texts too; rows and columns stay.
    void clear();

    // An invalid QColor takes the cell's own colour back.
    void set_back_color(int row, int column, const QColor& color);
    void set_fore_color(int row, int column, const QColor& color);
    void set_bold(int row, int column, bool bold);
    void set_row_back_color(int row, const QColor& color);
    QColor back_color(int row, int column) const;

    // The current cell; -1 where there is none.
    int row() const;
    int column() const;
    void set_current(int row, int column);  // a body cell; it is scrolled into view
    void forget_current();                  // none is current, and the first rows are in view, as in a grid just filled

    // Sorts whole body rows ascending, equal ones in their order: numbers by value before texts in Turkish order.
    void sort_by(int column);

    // The same number as before: rows, texts, their order and colours are what they were.
    std::uint64_t revision() const;

    // Where the cell lies, in the coordinates of the grid's parent, for an editor laid over it.
    QRect cell_rect(int row, int column) const;

    // Many changes at once: the view is told at the end of the scope. Scopes may nest.
    class Filling {
    public:
        explicit Filling(GridView& grid);
        ~Filling();
        Filling(const Filling&) = delete;
        Filling& operator=(const Filling&) = delete;

    private:
        GridView& grid_;
    };

signals:
    // Of body cells outside the fixed columns, with the left button. A click is pressed and released over one cell;
    // Space and Enter on the current cell are one too. A double click is one click and one double click.
    void cell_clicked(int row, int column);
    void cell_pressed(int row, int column);
    void cell_double_clicked(int row, int column);
    // The same on a fixed column of a body row; the row's first free cell is the current one then.
    void fixed_clicked(int row, int column);
    void fixed_pressed(int row, int column);
    void scrolled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& typed) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QModelIndex body_index(int row, int column) const;  // throws where there is no such body cell
    void select(const QModelIndex& index);
    void apply_widths();
    void apply_row_height();

    std::unique_ptr<GridModel> model_;
    std::vector<int> widths_;  // twips
    QPersistentModelIndex pressed_;
    int stretch_column_ = -1;
};
