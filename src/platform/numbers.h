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
