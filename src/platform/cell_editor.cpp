#include "platform/cell_editor.h"

#include "platform/grid_view.h"

CellEditor::CellEditor(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    hide();
}

void CellEditor::open(const GridView& grid, int row, int column, const QString& text, Caret caret) {
    setFont(grid.font());
    setGeometry(grid.cell_rect(row, column));
    setText(text);
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
    setCursorPosition(caret == Caret::at_start ? 0 : static_cast<int>(this->text().size()));
}
