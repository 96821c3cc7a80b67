#include "platform/color_choice.h"

#include <QApplication>
#include <QColorDialog>

namespace color_choice {

QColor pick(const QColor& start) {
    if (Override::current()) return Override::current()(start);
    QColorDialog CDC(start, QApplication::activeWindow());
    CDC.setObjectName(QStringLiteral("CDC"));
    CDC.setWindowTitle(QStringLiteral("Renk seç"));
    CDC.exec();
    return CDC.selectedColor();
}

}  // namespace color_choice
