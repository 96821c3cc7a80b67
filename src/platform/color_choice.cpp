#include "platform/color_choice.h"

#include <QApplication>
#include <QColorDialog>

#include <utility>

namespace color_choice {

namespace {

std::function<QColor(const QColor&)> choice_of_test;

}  // namespace

QColor pick(const QColor& start) {
    if (choice_of_test) return choice_of_test(start);
    QColorDialog CDC(start, QApplication::activeWindow());
    CDC.setObjectName(QStringLiteral("CDC"));
    CDC.setWindowTitle(QStringLiteral("Renk seç"));
    CDC.exec();
    return CDC.selectedColor();
}

Override::Override(std::function<QColor(const QColor&)> choice)
    : before_(std::exchange(choice_of_test, std::move(choice))) {}

Override::~Override() {
    choice_of_test = std::move(before_);
}

}  // namespace color_choice
