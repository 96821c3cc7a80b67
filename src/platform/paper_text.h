// A part of a paper as a table of texts at their places.
#pragma once

#include "platform/print_surface.h"

#include <span>

struct PaperText {
    double x, y;  // twips from the corner that the part is printed at
    PrintSurface::Font font;
    QString text;
};

// In the order of the table; the surface keeps the last font.
inline void print_texts(PrintSurface& paper, double left, double top, std::span<const PaperText> texts) {
    for (const PaperText& text : texts) {
        paper.font(text.font);
        paper.move_to(left + text.x, top + text.y);
        paper.print(text.text);
    }
}
