// What every window of the office must keep, whatever it shows. Each answer names the controls that break the rule.
#pragma once

#include "platform/elided_label.h"

#include <QScrollArea>

inline QRect place_in(const QWidget& form, const QWidget& widget) {
    return {widget.mapTo(&form, QPoint(0, 0)), widget.size()};
}

// Two buttons under one mnemonic key.
inline QString conflicting_keys(const QList<QAbstractButton*>& buttons) {
    QHash<QString, int> uses;
    for (const QAbstractButton* button : buttons) ++uses[button->shortcut().toString()];
    QString found;
    for (const QAbstractButton* button : buttons)
        if (!button->shortcut().isEmpty() && uses[button->shortcut().toString()] > 1)
            found += button->objectName() + ' ';
    return found;
}

inline QList<QAbstractButton*> visible_buttons(const QWidget& form) {
    QList<QAbstractButton*> buttons = form.findChildren<QAbstractButton*>();
    buttons.removeIf([](const QAbstractButton* button) { return !button->isVisible(); });
    return buttons;
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

// Captions and buttons narrower than what they say, or lower where `height_counts`.
template <typename HeightCounts>
QString cut_captions(const QWidget& form, HeightCounts height_counts) {
    QString found;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool says =
            label != nullptr ? !label->text().isEmpty() : qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (!says || !widget->isVisible() || qobject_cast<const ElidedLabel*>(widget)) continue;
        const QSize needed = widget->minimumSizeHint();
        if (widget->width() < needed.width() || (height_counts(widget) && widget->height() < needed.height()))
            found += widget->objectName() + ' ';
    }
    return found;
}
