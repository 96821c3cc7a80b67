#include "platform/focus_watch.h"

#include "platform/slots.h"

#include <QApplication>

#include <utility>

FocusRounds& FocusRounds::of_application() {
    static QPointer<FocusRounds> rounds;
    if (!rounds) rounds = new FocusRounds(qApp);
    return *rounds;
}

FocusRounds::FocusRounds(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now == nullptr) return;
        const QPointer<QWidget> alive = now;
        emit left_for(now);
        if (alive) emit came_to(now);
    });
}

FocusWatch::FocusWatch(QWidget* control, QObject* context, std::function<void()> got, std::function<void()> lost)
    : QObject(context),
      control_(control),
      got_(std::move(got)),
      lost_(std::move(lost)),
      inside_(holds(QApplication::focusWidget())) {
    connect(&FocusRounds::of_application(), &FocusRounds::left_for, this, &FocusWatch::left_for);
    connect(&FocusRounds::of_application(), &FocusRounds::came_to, this, &FocusWatch::came_to);
}

// A drop-down list, a menu, a message box and another form are windows of their own. A handler of this very move may
// have sent the focus on: then the news is stale, and the later move has told or will tell where it is.
bool FocusWatch::concerns(const QWidget* now) const {
    return control_ && now == QApplication::focusWidget() && now->window() == control_->window();
}

// Editable lists and date pickers have a line edit inside.
bool FocusWatch::holds(const QWidget* now) const {
    return control_ && now != nullptr && (now == control_ || control_->isAncestorOf(now));
}

void FocusWatch::left_for(QWidget* now) {
    if (!inside_ || !concerns(now) || holds(now)) return;
    inside_ = false;
    if (lost_) fatal::guard(lost_);
}

void FocusWatch::came_to(QWidget* now) {
    if (inside_ || !concerns(now) || !holds(now)) return;
    inside_ = true;
    if (got_) fatal::guard(got_);
}
