// A text box without a border that is laid over a cell of a GridView while its value is typed.
#pragma once

#include <QLineEdit>

class GridView;

// Hidden until opened. Its textChanged and key events are the owner's; it writes nothing by itself.
class CellEditor : public QLineEdit {
    Q_OBJECT

public:
    explicit CellEditor(QWidget* parent = nullptr);

    enum class Caret { at_start, at_end };
    // Takes the grid's font, lies exactly over the cell, shows `text`, is shown and takes the focus. Editor and
    // grid have the same parent. Setting the text runs textChanged before the editor is visible.
    void open(const GridView& grid, int row, int column, const QString& text, Caret caret);
};
