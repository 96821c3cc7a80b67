#include "platform/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int told_letters = 12, least_letters = 3;

// As QLabel lays out its text: the indent stands at the side that the text is aligned to.
QRect text_rect(const QLabel& label) {
    QRect rect =
        label.contentsRect().marginsRemoved(QMargins(label.margin(), label.margin(), label.margin(), label.margin()));
    const int indent = std::max(label.indent(), 0);
    if (label.alignment() & Qt::AlignLeft) rect.setLeft(rect.left() + indent);
    if (label.alignment() & Qt::AlignRight) rect.setRight(rect.right() - indent);
    return rect;
}

QString one_line(const QLabel& label) {
    return label.text().simplified().isEmpty() ? QString()
                                               : label.text().replace(u'\r', QString()).replace(u'\n', u' ');
}

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
    const int frame = 2 * (frameWidth() + margin());
    return {fontMetrics().averageCharWidth() * told_letters + frame, fontMetrics().height() + frame};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * least_letters, sizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QLabel::event(event);
    const bool cut = fontMetrics().horizontalAdvance(one_line(*this)) > text_rect(*this).width();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? text() : QString(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect rect = text_rect(*this);
    const QString shown = fontMetrics().elidedText(one_line(*this), Qt::ElideRight, rect.width());
    const int alignment = static_cast<int>(QStyle::visualAlignment(layoutDirection(), this->alignment()));
    style()->drawItemText(&painter, rect, alignment, palette(), isEnabled(), shown, foregroundRole());
}
