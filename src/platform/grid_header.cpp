#include "platform/grid_header.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int text_margin = 3;         // pixels, as in the cells below
constexpr int narrowest_letters = 60;  // percent

}  // namespace

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const auto told = [&](int role) { return model()->headerData(section, orientation(), role); };
    const QVariant back = told(Qt::BackgroundRole);
    if (!back.isValid() || !isEnabled()) return QHeaderView::paintSection(painter, rect, section);
    painter->fillRect(rect, back.value<QColor>());
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->setPen(told(Qt::ForegroundRole).value<QColor>());
    const QString words = told(Qt::DisplayRole).toString();
    QRect place = rect.adjusted(text_margin, 0, -text_margin, 0);
    QFont letters = font();
    // Some columns are narrower than their heading: it may come closer to the edges, and its letters together.
    const int wanted = fontMetrics().horizontalAdvance(words);
    if (wanted > place.width()) {
        place = rect.adjusted(1, 0, -1, 0);
        letters.setStretch(std::clamp(100 * place.width() / wanted - 4, narrowest_letters, 100));
    }
    painter->setFont(letters);
    const QString text = QFontMetrics(letters).elidedText(words, textElideMode(), place.width());
    painter->drawText(place, told(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
}
