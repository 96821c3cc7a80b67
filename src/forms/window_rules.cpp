#include "forms/window_rules.h"

#include "forms/overlay_frame.h"
#include "platform/date_picker.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>
#include <QShortcutEvent>

#include <algorithm>

namespace {

bool is_enter(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           !(event.modifiers() & ~Qt::KeypadModifier);
}

// The one-line control that a key event goes to, seen through the line edit inside a list or a date; null where
// Enter is the control's own.
QWidget* one_line_control(QWidget* receiver) {
    QWidget* outer = receiver->parentWidget();
    const bool inner = qobject_cast<QLineEdit*>(receiver) != nullptr;
    if (inner && (qobject_cast<QComboBox*>(outer) || qobject_cast<QAbstractSpinBox*>(outer))) return outer;
    const bool one_line = qobject_cast<QLineEdit*>(receiver) || qobject_cast<QComboBox*>(receiver) ||
                          qobject_cast<QAbstractSpinBox*>(receiver) || qobject_cast<QCheckBox*>(receiver) ||
                          qobject_cast<QRadioButton*>(receiver);
    return one_line ? receiver : nullptr;
}

// Sees the keys of the whole application first, so that a control that joins the form later follows the rule too.
class FormKeys : public QObject {
public:
    FormKeys(QWidget* form, const QPointer<QPushButton>& default_button)
        : QObject(form), form_(form), default_button_(default_button) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::Shortcut) return false;
        auto* widget = qobject_cast<QWidget*>(receiver);
        if (widget == nullptr || !form_->isAncestorOf(widget)) return false;
        if (event->type() == QEvent::Shortcut) return shortcut(widget, static_cast<const QShortcutEvent&>(*event));
        const auto& key = static_cast<const QKeyEvent&>(*event);
        return is_enter(key) && enter(widget, key.isAutoRepeat());
    }

private:
    // What stands behind an overlay is out of reach for the mouse, and so for the keyboard.
    static bool is_covered(const QWidget& button) {
        const QList<OverlayFrame*> overlays = button.window()->findChildren<OverlayFrame*>();
        return std::ranges::any_of(overlays, [&](const OverlayFrame* overlay) {
            return overlay->isVisible() && !overlay->isAncestorOf(&button);
        });
    }

    // The control left behind has its lost focus before the button acts, and may still disable the button.
    static bool shortcut(QWidget* widget, const QShortcutEvent& event) {
        auto* button = qobject_cast<QAbstractButton*>(widget);
        if (button == nullptr || event.isAmbiguous() || !button->isEnabled()) return false;
        if (is_covered(*button)) return true;
        const QPointer<QAbstractButton> alive = button;
        if (button->focusPolicy() != Qt::NoFocus) button->setFocus(Qt::ShortcutFocusReason);
        if (alive && button->isEnabled() && button->isVisible()) button->click();
        return true;
    }

    // A held key presses once.
    bool enter(QWidget* widget, bool repeated) const {
        QPushButton* button = qobject_cast<QPushButton*>(widget);
        if (button == nullptr) {
            QWidget* control = one_line_control(widget);
            if (control == nullptr || !can_press()) return false;
            if (repeated) return true;
            if (auto* date = qobject_cast<DatePicker*>(control)) date->take_typed();
            if (!can_press()) return true;
            button = default_button_;
        }
        if (!repeated) button->click();
        return true;
    }

    bool can_press() const { return default_button_ && default_button_->isVisible() && default_button_->isEnabled(); }

    QWidget* form_;
    const QPointer<QPushButton>& default_button_;
};

}  // namespace

DefaultButtonRule::~DefaultButtonRule() = default;

void DefaultButtonRule::set_default_button(QPushButton* button) {
    default_button_ = button;
}

void DefaultButtonRule::watch(QWidget* form) {
    new FormKeys(form, default_button_);
}

ClickableLabel::ClickableLabel(QWidget* parent) : QLabel(parent) {
    // A click leaves the focus where it is, as on any label.
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

void ClickableLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || is_enter(*event))
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}
