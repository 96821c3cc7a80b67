// A page of a paper as rows of text, to be compared with a table written by hand.
#pragma once

#include "platform/print_surface.h"

#include <QStringList>

// "X,Y points style text" of each text in its order; style is b, i, bi or -. A line is "X,Y-X2,Y2".
inline QStringList paper_lines(const PrintSurface::Page& page) {
    QStringList rows;
    const auto place = [](double x, double y) { return QStringLiteral("%1,%2").arg(x).arg(y); };
    for (const PrintSurface::Operation& operation : page) {
        const QString at = place(operation.x, operation.y);
        if (operation.kind == PrintSurface::Operation::Kind::line) {
            rows << at + u'-' + place(operation.x2, operation.y2);
            continue;
        }
        QString style = operation.font.bold ? QStringLiteral("b") : QString();
        if (operation.font.italic) style += u'i';
        if (style.isEmpty()) style = QStringLiteral("-");
        rows << QStringLiteral("%1 %2 %3 %4").arg(at).arg(operation.font.points).arg(style, operation.text);
    }
    return rows;
}

inline QStringList paper_texts(const PrintSurface::Page& page) {
    QStringList texts;
    for (const PrintSurface::Operation& operation : page)
        if (operation.kind == PrintSurface::Operation::Kind::text) texts << operation.text;
    return texts;
}
