// The text colour of a label as a blue-green-red number.
#pragma once

#include "platform/screen_units.h"

#include <QPalette>
#include <QWidget>

inline void set_text_color(QWidget& widget, unsigned blue_green_red) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, screen_units::color(blue_green_red));
    widget.setPalette(palette);
}
