// Windows code page 1254 (Turkish) by a table of our own, the same on every machine.
#pragma once

#include <QByteArray>
#include <QString>

namespace code_page {

// Every byte has a letter; the few unassigned ones become U+FFFD.
QString decode(QByteArrayView bytes);

// Throws std::runtime_error that names the first letter without a place in the code page.
QByteArray encode(QStringView text);

// The code of one letter, or -1.
int code_of(QChar letter);
QChar letter_of(unsigned char code);

}  // namespace code_page
