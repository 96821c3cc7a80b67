// The small text files of the suite: code page 1254, lines ended by CR LF, read whole and rewritten whole
// (written beside and renamed, so that a cut leaves the old file). Names as in paths.h.
// All routines throw std::runtime_error with a Turkish text that names the file.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace text_file {

// The lines without their ends; any of CR LF, LF and CR ends one. The last line needs none.
QStringList read_lines(const QString& name);
void write_lines(const QString& name, const QStringList& lines);
// Bytes as they stand, for a device with letters of its own.
void write_bytes(const QString& name, const QByteArray& bytes);

// Items: values separated by commas or line ends; a text may stand in double quotes, and then holds commas.
// A blank around a bare value does not count; an empty place between two commas is an empty item,
// an empty line too.
QStringList read_items(const QString& name);
struct Item {
    QString text;
    int line;            // counted from 1
    bool of_empty_line;  // nothing else stands there, not even quotes
};
std::vector<Item> read_items_with_lines(const QString& name);
// A line of items, texts in double quotes, numbers bare.
QString quoted(const QString& text);

}  // namespace text_file
