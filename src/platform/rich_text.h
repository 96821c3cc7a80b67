// RTF and plain text. A value that does not begin as RTF is plain text.
#pragma once

#include <QString>

class QTextDocument;
class QTextEdit;

namespace rich_text {

// The plain text of a stored value. Paragraphs are separated by "\n", without one at the end.
// Any input ends: broken RTF gives what could be read.
QString plain(const QString& value);

// The RTF document of a plain text, ASCII only.
QString from_plain(const QString& text);

// Fills the document with text and formatting: fonts, sizes, colours of letters and of their background, bold,
// italic, underline, strike-out, letters set high or low, paragraphs and their alignment, tabs.
// Nothing of what the document held before can be brought back by undo.
void load(const QString& value, QTextDocument& document);
void load(const QString& value, QTextEdit& box);  // the caret at the start
QString save(const QTextDocument& document);

}  // namespace rich_text
