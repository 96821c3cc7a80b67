// Comma-separated rows as RFC 4180 has them, with Null told from an empty text: an empty field is Null, "" is
// an empty text.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace csv {

struct Field {
    std::optional<QString> text;  // none is Null
    int line = 1;                 // where the field begins, counted from 1
};
using Row = std::vector<Field>;

// The rows of a text in UTF-8. Lines end with CR LF or LF; a line end inside quotes is part of the text.
// Throws std::runtime_error that names the line of what is no such text.
std::vector<Row> read(const QByteArray& utf8);

// One field as it stands in a file; a text is quoted where it must be.
QString written(const std::optional<QString>& text);

inline const QString line_end = QStringLiteral("\r\n");

}  // namespace csv
