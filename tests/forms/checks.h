// What every window of the office must keep, whatever it shows. Each answer names the controls that break the rule.
#pragma once

#include "platform/elided_label.h"

#include <QScrollArea>

inline QRect place_in(const QWidget& form, const QWidget& widget) {
    return {widget.mapTo(&form, QPoint(0, 0)), widget.size()};
}

// Controls that a screen reader has no words for. What Qt makes for itself has no name of ours.
inline QString nameless_controls(const QWidget& form) {
    QString found;
    for (const QWidget* widget : form.findChildren<QWidget*>(QRegularExpression("^(?!qt_)."))) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool says = (button != nullptr && !button->text().isEmpty()) || qobject_cast<const QLabel*>(widget) ||
                          qobject_cast<const QScrollArea*>(widget) ||
                          qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
        if (!says && widget->focusPolicy() != Qt::NoFocus && widget->accessibleName().isEmpty())
            found += widget->objectName() + ' ';
    }
    return found;
}

// Captions and buttons narrower than what they say.
inline QString cut_captions(const QWidget& form) {
    QString found;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool says =
            label != nullptr ? !label->text().isEmpty() : qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (!says || !widget->isVisible() || qobject_cast<const ElidedLabel*>(widget)) continue;
        if (widget->width() < widget->minimumSizeHint().width()) found += widget->objectName() + ' ';
    }
    return found;
}
