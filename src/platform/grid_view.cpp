#include "platform/grid_view.h"

#include "platform/grid_delegate.h"
#include "platform/grid_header.h"
#include "platform/grid_model.h"
#include "platform/screen_units.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr int default_width = 960;  // twips
constexpr int hidden_width = 1;

}  // namespace

GridView::GridView(QWidget* parent) : QTableView(parent), model_(std::make_unique<GridModel>()) {
    setModel(model_.get());
    setItemDelegate(new GridDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    // The current row is seen at a glance and its text stays as legible as the others'.
    set_selection_colors(QColor(0xCD, 0xDF, 0xEF), Qt::black);

    setHorizontalHeader(new GridHeader(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    apply_row_height();
}

GridView::~GridView() {
    setModel(nullptr);
}

void GridView::set_fixed(int rows, int columns) {
    model_->set_fixed(rows, columns);
    horizontalHeader()->setVisible(rows > 0);
    apply_widths();
}

int GridView::fixed_rows() const {
    return model_->fixed_rows();
}

int GridView::fixed_columns() const {
    return model_->fixed_columns();
}

void GridView::set_fixed_colors(const QColor& back, const QColor& fore) {
    model_->set_fixed_colors(back, fore);
}

void GridView::set_cell_color(const QColor& back) {
    model_->set_cell_color(back);
}

void GridView::set_selection_colors(const QColor& back, const QColor& fore) {
    QPalette colors = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        colors.setColor(group, QPalette::Highlight, back);
        colors.setColor(group, QPalette::HighlightedText, fore);
    }
    setPalette(colors);
}

int GridView::rows() const {
    return model_->rows();
}

void GridView::set_rows(int rows) {
    const bool shrinks = rows < model_->rows();
    model_->set_rows(rows);
    // The selection model moves the current cell off lost rows, but leaves it unselected.
    if (shrinks && currentIndex().isValid()) select(currentIndex());
}

int GridView::columns() const {
    return model_->columns();
}

void GridView::set_columns(int columns) {
    model_->set_columns(columns);
    widths_.resize(static_cast<std::size_t>(model_->columns()), default_width);
    apply_widths();
}

void GridView::set_widths(const std::vector<int>& twips) {
    model_->set_columns(static_cast<int>(twips.size()));
    widths_ = twips;
    apply_widths();
}

void GridView::set_alignment(int column, Qt::Alignment alignment) {
    model_->set_alignment(column, alignment);
}

void GridView::set_stretch_column(int column) {
    stretch_column_ = column;
    apply_widths();
}

void GridView::apply_widths() {
    int others = 0;
    for (int column = 0; column < model_->columns(); ++column) {
        const int twips = widths_[static_cast<std::size_t>(column)];
        setColumnHidden(column, twips <= hidden_width);
        if (twips <= hidden_width) continue;
        setColumnWidth(column, screen_units::pixels(twips));
        if (column != stretch_column_) others += screen_units::pixels(twips);
    }
    if (stretch_column_ < 0 || stretch_column_ >= model_->columns()) return;
    const int told = screen_units::pixels(widths_[static_cast<std::size_t>(stretch_column_)]);
    setColumnWidth(stretch_column_, std::max(told, viewport()->width() - others));
}

void GridView::apply_row_height() {
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(std::max(24, fontMetrics().height() + 6));
}

QString GridView::text(int row, int column) const {
    return model_->text(row, column);
}

void GridView::set_text(int row, int column, const QString& text) {
    model_->set_text(row, column, text);
}

void GridView::set_row(int row, const QStringList& texts, int first_column) {
    for (int i = 0; i < static_cast<int>(texts.size()); ++i) model_->set_text(row, first_column + i, texts[i]);
}

void GridView::clear() {
    model_->clear();
}

void GridView::set_back_color(int row, int column, const QColor& color) {
    GridModel::Format format = model_->format(row, column);
    format.back = color;
    model_->set_format(row, column, format);
}

void GridView::set_fore_color(int row, int column, const QColor& color) {
    GridModel::Format format = model_->format(row, column);
    format.fore = color;
    model_->set_format(row, column, format);
}

void GridView::set_bold(int row, int column, bool bold) {
    GridModel::Format format = model_->format(row, column);
    format.bold = bold;
    model_->set_format(row, column, format);
}

void GridView::set_row_back_color(int row, const QColor& color) {
    for (int column = 0; column < columns(); ++column) set_back_color(row, column, color);
}

QColor GridView::back_color(int row, int column) const {
    return model_->format(row, column).back;
}

int GridView::row() const {
    return currentIndex().isValid() ? currentIndex().row() + fixed_rows() : -1;
}

int GridView::column() const {
    return currentIndex().isValid() ? currentIndex().column() : -1;
}

QModelIndex GridView::body_index(int row, int column) const {
    model_->publish_rows();
    const QModelIndex index = model_->index(row - fixed_rows(), column);
    if (!index.isValid()) throw std::out_of_range("Tabloda böyle bir hücre yok.");
    return index;
}

void GridView::select(const QModelIndex& index) {
    const auto rows = selectionBehavior() == SelectRows ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | rows);
}

void GridView::set_current(int row, int column) {
    const QModelIndex index = body_index(row, column);
    select(index);
    scrollTo(index);
}

void GridView::forget_current() {
    selectionModel()->clear();
    scrollToTop();
}

void GridView::sort_by(int column) {
    model_->sort_by(column);
}

std::uint64_t GridView::revision() const {
    return model_->revision();
}

QRect GridView::cell_rect(int row, int column) const {
    if (row < fixed_rows()) {
        const QHeaderView* header = horizontalHeader();
        const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column), header->height());
        return section.translated(header->pos() + pos());
    }
    return visualRect(body_index(row, column)).translated(viewport()->pos() + pos());
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const bool clicks =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!clicks || (event->modifiers() & ~Qt::KeypadModifier)) {
        QTableView::keyPressEvent(event);
    } else if (!event->isAutoRepeat() && currentIndex().isValid()) {
        emit cell_clicked(row(), column());
    }
}

// A stray letter must not move the current cell.
void GridView::keyboardSearch(const QString&) {}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    QTableView::mousePressEvent(event);
    pressed_ = index;
    if (!index.isValid()) return;
    if (index.column() >= fixed_columns()) {
        emit cell_pressed(index.row() + fixed_rows(), index.column());
    } else {
        if (fixed_columns() < columns()) select(index.siblingAtColumn(fixed_columns()));
        emit fixed_pressed(index.row() + fixed_rows(), index.column());
    }
}

// With the button held the base class would drag the current cell along, away from an editor that the press opened.
void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const QModelIndex pressed = std::exchange(pressed_, {});
    if (event->button() != Qt::LeftButton || !pressed.isValid()) return;
    if (indexAt(event->position().toPoint()) != pressed) return;
    if (pressed.column() >= fixed_columns())
        emit cell_clicked(pressed.row() + fixed_rows(), pressed.column());
    else
        emit fixed_clicked(pressed.row() + fixed_rows(), pressed.column());
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) return;
    const bool fixed = index.column() < fixed_columns();
    // Two quick clicks on neighbouring cells are two clicks.
    if (fixed ? index.row() != currentIndex().row() : index != currentIndex()) {
        mousePressEvent(event);
        return;
    }
    if (!fixed) emit cell_double_clicked(index.row() + fixed_rows(), index.column());
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) apply_row_height();
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (stretch_column_ >= 0) apply_widths();
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (dx != 0 || dy != 0) emit scrolled();
}

GridView::Filling::Filling(GridView& grid) : grid_(grid) {
    grid_.model_->hold();
    grid_.setUpdatesEnabled(false);
}

GridView::Filling::~Filling() {
    if (grid_.model_->release()) grid_.setUpdatesEnabled(true);
}
