// What the windows of the program do beyond Qt's own: the default button, clickable headings.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QPushButton>

// Enter in a one-line control of the form (text box, list, date) presses the marked button, before the control's
// own key press and without moving the focus, but only if the button is visible and enabled; otherwise the key
// goes to the control. In a date the typed date is taken first.
class DefaultButtonRule {
public:
    virtual ~DefaultButtonRule();
    void set_default_button(QPushButton* button);  // nullptr: none
    QPushButton* default_button() const { return default_button_; }

protected:
    void watch(QWidget* form);

private:
    QPointer<QPushButton> default_button_;
};

// A label that a click presses; with the focus Space and Enter do too.
class ClickableLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget* parent = nullptr);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
