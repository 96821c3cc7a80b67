// A label whose text is elided where it is too long, with the whole text in the tooltip.
#pragma once

#include <QLabel>

// Plain text on one line. Its size hint does not follow the text, so that a longer name moves no other control.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
