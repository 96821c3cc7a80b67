// A part of a paper as a table of texts at their places, and texts that are wider than their place.
#pragma once

#include "platform/print_surface.h"

#include <QRectF>
#include <QStringList>

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

// Broken at blanks where it is wider than `width` twips in the current font, inside a word only where that alone is
// wider. No piece for an empty text.
QStringList broken_text(const PrintSurface& paper, QString text, double width);

// The four lines of a box, in twips.
void print_box(PrintSurface& paper, const QRectF& box);
