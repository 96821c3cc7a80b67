// The Turkish letters of a matrix printer, which has codes of its own for them.
#pragma once

#include "session/print_settings.h"

#include <QByteArray>

// For a matrix printer each letter of the table fkrk becomes the character of the code in the same row of krk; for a
// laser printer the text stays as it is. A text goes through once: the codes are letters themselves.
QString harf_cevir(const QString& text, const PrintSettings& print);

// The bytes that such a text is sent as, whatever codes the table holds. Throws std::runtime_error that names the
// first letter without a place in the code page.
QByteArray printer_bytes(const QString& text);
