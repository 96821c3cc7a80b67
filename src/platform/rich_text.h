// RTF and plain text. A value that does not begin as RTF is plain text.
#pragma once

#include <QString>

class QTextDocument;

namespace rich_text {

// The plain text of a stored value. Paragraphs are separated by "\n", without one at the end.
// Any input ends: broken RTF gives what could be read.
QString plain(const QString& value);

// The RTF document of a plain text, ASCII only.
QString from_plain(const QString& text);

// Fills the document with text and formatting: fonts, sizes, colours, bold, italic, underline, strike-out,
// paragraphs and their alignment, tabs.
void load(const QString& value, QTextDocument& document);
QString save(const QTextDocument& document);

}  // namespace rich_text
