// What a verb says and hears on the command line.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

namespace console {

// To the standard output, at once; throws std::runtime_error where that cannot be written.
void say(const QByteArray& utf8);
void say(const QString& text);

// Bytes pass as they are; Windows would turn their line ends.
void plain_bytes(std::FILE* stream);
// All of the standard input.
QByteArray standard_input();

// Puts the question and reads one line; true for "e" or "evet".
bool agrees(const QString& question);
// Puts the question and reads one line, which a terminal does not show.
QString secret(const QString& question);

}  // namespace console
