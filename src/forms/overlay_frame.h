// A panel that comes up in the middle of its form over the dimmed page.
#pragma once

#include <QFrame>
#include <QPointer>
#include <QPushButton>

// Showing it dims and covers everything behind it, hiding it takes that back. Tab stays inside; Esc presses the
// cancel button. It is a direct child of the form.
class OverlayFrame : public QFrame {
    Q_OBJECT

public:
    explicit OverlayFrame(QWidget* parent = nullptr);

    void set_cancel_button(QPushButton* button) { cancel_ = button; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void lay_out();

    QPointer<QPushButton> cancel_;
    QPointer<QWidget> veil_;
};
