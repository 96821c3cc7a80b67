#include "forms/overlay_frame.h"

#include <QEvent>
#include <QKeyEvent>

OverlayFrame::OverlayFrame(QWidget* parent) : QFrame(parent) {
    setAutoFillBackground(true);
}

bool OverlayFrame::event(QEvent* event) {
    if (event->type() == QEvent::ShowToParent && parentWidget() != nullptr) {
        if (veil_.isNull()) {
            veil_ = new QWidget(parentWidget());
            veil_->setObjectName(QStringLiteral("veil"));
            veil_->setAttribute(Qt::WA_StyledBackground);
            parentWidget()->installEventFilter(this);
        }
        lay_out();
        veil_->show();
        veil_->raise();
        raise();
    }
    if (event->type() == QEvent::HideToParent && !veil_.isNull()) veil_->hide();
    return QFrame::event(event);
}

bool OverlayFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisibleTo(parentWidget())) lay_out();
    return QFrame::eventFilter(watched, event);
}

void OverlayFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !cancel_.isNull() && cancel_->isEnabled())
        cancel_->click();
    else
        QFrame::keyPressEvent(event);
}

bool OverlayFrame::focusNextPrevChild(bool next) {
    QWidget* const from = window()->focusWidget();
    if (from == nullptr || !isAncestorOf(from)) return QFrame::focusNextPrevChild(next);
    QWidget* candidate = from;
    do {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (isAncestorOf(candidate) && candidate->isVisible() && candidate->isEnabled() &&
            (candidate->focusPolicy() & Qt::TabFocus) != 0 && candidate->focusProxy() == nullptr) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (candidate != from);
    return true;
}

void OverlayFrame::lay_out() {
    const QRect form = parentWidget()->rect();
    veil_->setGeometry(form);
    const QSize size = sizeHint().boundedTo(form.size());
    setGeometry((form.width() - size.width()) / 2, (form.height() - size.height()) / 2, size.width(), size.height());
}
