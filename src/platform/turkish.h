// Turkish letters: their capitals and their order, never by the machine's locale.
#pragma once

#include <QString>

#include <string>

namespace turkish {

// Capitals as a name box types them: i -> İ, ı -> I, every other letter by the general rule; a letter stays as it is
// where its capital is not in the code page.
QString capital(const QString& typed);
QChar capital(QChar typed);

// The order of stored keys and of the grids: without case; other signs, then digits, then the alphabet
// a b c ç d e f g ğ h ı i j k l m n o ö p q r s ş t u ü v w x y z. Negative, 0, positive.
// Two texts are equal when they differ in case only. Fixed for ever, since it orders stored indexes.
int compare(QStringView left, QStringView right);
// The same on UTF-8, as the files hold texts.
int compare_utf8(const char* left, int left_size, const char* right, int right_size);
// Bytes whose plain order, a shorter text before its continuations, is this order: for whoever sorts without us.
std::string sort_key(QStringView text);

// Plain order by character code, as the learned lists and the teachers are kept.
bool before_by_code(const QString& left, const QString& right);

}  // namespace turkish
