// Rows in the seven tables of a term that hang on a student's number.
#pragma once

#include <QString>

namespace term_rows {

// Two rows in each table, the collections with cash rows at "NNNN01" and "NNNN02" of 5 November 2026.
void add(int student);
// How many rows the number has in Odeme, Devam, Dmazeret, Etud, EtudDevam, Emazeret and Tahsilat.
QString counts(int student);

void add_session(int student, const QString& saat);
void remove_session(int student, const QString& saat);

void add_cash_row(const QString& saat, const QString& text, const QString& kod = QStringLiteral("1"));
QString cash_text(const QString& saat);  // "?" where there is no row

}  // namespace term_rows
