// The fonts of one paper, each made and measured once.
#pragma once

#include "platform/print_surface.h"

#include <QFont>
#include <QFontMetricsF>

#include <deque>

// One unit is a twip: a device of 1440 dots to the inch shows these fonts at their true size.
class PaperFonts {
public:
    struct Face {
        PrintSurface::Font told;
        QFont font;
        QFontMetricsF metrics;
    };
    // Stays valid as long as the object lives.
    const Face& face(const PrintSurface::Font& font);

private:
    std::deque<Face> faces_;
};
