// Who has the focus inside a form, whatever windows, menus and drop-down lists come over it meanwhile.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

// Turns the application's moves of the focus into two rounds, so that every control has lost the focus before
// another gets it.
class FocusRounds : public QObject {
    Q_OBJECT

public:
    static FocusRounds& of_application();

signals:
    void left_for(QWidget* now);
    void came_to(QWidget* now);

private:
    explicit FocusRounds(QObject* parent);
};

// One handler of one control; lives as long as its context.
class FocusWatch : public QObject {
    Q_OBJECT

public:
    FocusWatch(QWidget* control, QObject* context, std::function<void()> got, std::function<void()> lost);

private:
    void left_for(QWidget* now);
    void came_to(QWidget* now);
    bool concerns(const QWidget* now) const;
    bool holds(const QWidget* now) const;

    QPointer<QWidget> control_;
    std::function<void()> got_, lost_;
    bool inside_;
};
