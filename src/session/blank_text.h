// The tables keep one blank where a text has nothing.
#pragma once

#include <QString>

inline QString or_blank(const QString& text) {
    return text.isEmpty() ? QStringLiteral(" ") : text;
}
