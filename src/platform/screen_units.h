// The twips and blue-green-red colours of layouts in pixels and QColor.
#pragma once

#include <QColor>

namespace screen_units {

// 12 twips are one pixel at 96 dpi; Qt scales further by itself.
constexpr int pixels(int twips) {
    return (twips + 6) / 12;
}

inline QColor color(unsigned blue_green_red) {
    return QColor(static_cast<int>(blue_green_red & 0xFF), static_cast<int>(blue_green_red >> 8 & 0xFF),
                  static_cast<int>(blue_green_red >> 16 & 0xFF));
}

}  // namespace screen_units
