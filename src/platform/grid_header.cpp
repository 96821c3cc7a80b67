#include "platform/grid_header.h"

#include <QPainter>

namespace {

constexpr int text_margin = 3;  // pixels, as in the cells below

}  // namespace

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const auto told = [&](int role) { return model()->headerData(section, orientation(), role); };
    const QVariant back = told(Qt::BackgroundRole);
    if (!back.isValid() || !isEnabled()) return QHeaderView::paintSection(painter, rect, section);
    painter->fillRect(rect, back.value<QColor>());
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->setPen(told(Qt::ForegroundRole).value<QColor>());
    const QRect place = rect.adjusted(text_margin, 0, -text_margin, 0);
    const QString text = fontMetrics().elidedText(told(Qt::DisplayRole).toString(), textElideMode(), place.width());
    painter->drawText(place, told(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
}
