#include "platform/grid_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool cut = sizeHint(option, index).width() > view->visualRect(index).width();
    QToolTip::showText(event->globalPos(), cut ? index.data().toString() : QString(), view);
    return true;
}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideRight;
    if (!index.flags().testFlag(Qt::ItemIsEnabled)) {
        // A fixed column: a heading that lies in the body, grey only where the whole grid is.
        const bool enabled = option->widget == nullptr || option->widget->isEnabled();
        const auto group = enabled ? QPalette::Active : QPalette::Disabled;
        option->state.setFlag(QStyle::State_Enabled, enabled);
        option->palette.setCurrentColorGroup(group);
        if (!index.data(Qt::BackgroundRole).isValid())
            option->backgroundBrush = option->palette.brush(group, QPalette::Button);
        if (!index.data(Qt::ForegroundRole).isValid())
            option->palette.setBrush(QPalette::Text, option->palette.brush(group, QPalette::ButtonText));
        return;
    }
    // A text colour of its own says something about the row, so it stays while the row is selected.
    const QVariant told = index.data(Qt::ForegroundRole);
    if (told.isValid() && option->palette.color(QPalette::Highlight).lightness() > 128)
        option->palette.setColor(QPalette::HighlightedText, told.value<QColor>());
}
