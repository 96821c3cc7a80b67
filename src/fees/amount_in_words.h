// An amount in Turkish words, as receipts, invoices, contracts and notes state it.
#pragma once

#include <QString>

#include <cstdint>

// Words without blanks but the one behind "Milyar", "Milyon" and "Bin"; it stays where it ends the text.
// 0 is an empty text, 1000 is "Bin ". Amounts have at most 12 digits.
QString tutar_yaziya(std::int64_t amount);

// The same from the amount's decimal text: blanks around it do not count, of a text longer than 12 characters
// the first 12 are read, and a character that is no digit counts as 0.
QString tutar_yaziya(const QString& digits);
