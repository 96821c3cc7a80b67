// The two number readers and the two pictures of the office. They differ, and which one reads decides money.
#pragma once

#include "platform/money.h"

#include <QString>

namespace numbers {

// The number parser: leading blanks, a sign, digits, an optional point and decimals; stops at the first other
// character. It knows no locale: "1.250" is 1.25, "12,5" is 12, an empty text 0.
double val(QStringView text);
Money money(QStringView text);  // the same, exact in ten-thousandths

// The whole-number rule: Turkish separators (points group, the comma is the decimal sign), rounded to the
// nearest whole, halves away from zero; a text that is no such number falls back to the number parser, rounded
// likewise. "1.250" is 1250, "12,5" is 13, an empty text 0.
Money whole(QStringView text);

// What a text can let through at the most: the larger of what the two readers give.
Money larger_of_readers(QStringView text);

// "#,###.##": Turkish separators, at most two decimals, no decimal sign behind a whole number, nothing before
// the decimal sign under 1, nothing at all for 0.
QString picture(Money amount);
// The picture of what a text holds, read as by the whole-number rule but not rounded: "1.250,5" stays as it is.
QString picture(QStringView text);
// "#": the whole digits, nothing for 0.
QString whole_picture(Money amount);

// Plain decimal digits with a point where there are decimals, "0" for 0: how a field's number reads as text.
QString plain(double number);
QString plain(Money amount);

}  // namespace numbers

// Turkish letters, never by the machine's locale.
namespace turkish {

QString upper(const QString& text);
QString lower(const QString& text);
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

// Plain order by character code, as the learned lists and the teachers are kept.
bool before_by_code(const QString& left, const QString& right);

}  // namespace turkish
