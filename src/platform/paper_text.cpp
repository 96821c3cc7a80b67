#include "platform/paper_text.h"

#include <algorithm>

namespace {

// As many characters from the front as stand within `width`, at least one.
qsizetype fitting(const PrintSurface& paper, const QString& text, double width) {
    qsizetype fits = 1, too_many = text.size() + 1;
    while (too_many - fits > 1) {
        const qsizetype middle = (fits + too_many) / 2;
        (paper.text_width(text.left(middle)) <= width ? fits : too_many) = middle;
    }
    return fits;
}

}  // namespace

QStringList broken_text(const PrintSurface& paper, QString text, double width) {
    QStringList pieces;
    while (paper.text_width(text) > width) {
        const qsizetype fits = fitting(paper, text, width);
        const qsizetype first_letter = std::ranges::find_if(text, [](QChar c) { return c != u' '; }) - text.begin();
        const qsizetype blank = text.lastIndexOf(u' ', fits);
        const qsizetype end = blank > first_letter ? blank : fits;
        pieces << text.left(end);
        text.remove(0, end);
        while (text.startsWith(u' ')) text.remove(0, 1);
    }
    if (!text.isEmpty()) pieces << text;
    return pieces;
}

void print_box(PrintSurface& paper, const QRectF& box) {
    paper.line(box.left(), box.top(), box.right(), box.top());
    paper.line(box.left(), box.bottom(), box.right(), box.bottom());
    paper.line(box.left(), box.top(), box.left(), box.bottom());
    paper.line(box.right(), box.top(), box.right(), box.bottom());
}
