// Control events as the handlers know them: got and lost focus inside one form, and keys as characters.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

#include <functional>

namespace control_events {

// The focus came to `control` from another control of the same form. It is no change of focus when the window
// is left or found again, or when a menu, a drop-down list or a message box opens or closes.
void on_got_focus(QWidget* control, QObject* context, std::function<void()> handler);
void on_lost_focus(QWidget* control, QObject* context, std::function<void()> handler);

// Every key pressed in the control, before its character goes through a filter and before the control itself;
// true takes the key away from both.
void on_key_down(QWidget* control, std::function<bool(const QKeyEvent&)> handler);

// A filter on typed characters: it gets each character that a key or an input method gives, Backspace
// (U+0008), Enter (U+000D) and Esc (U+001B) among them, and returns what takes effect; a null QChar drops the
// key. Delete, arrows, selection, Ctrl combinations and paste do not come by here.
void on_key_press(QLineEdit* box, std::function<QChar(QChar)> filter);

// Only "0" to "9" pass; Backspace is dropped too.
QChar digits_only(QChar key);

}  // namespace control_events
