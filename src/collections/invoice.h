// The invoice of a collection on the school's own printed form.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

// Prints the collection that stands in FTahsil_TABLO4, in the form that session.print names. What came of it is told in
// the form's status line. Throws std::runtime_error in Turkish when it cannot be printed; the file then holds the
// invoice before, and no copy is printed by halves.
//
// Matrix: the text with the printer's letters to c:\qlm\bak.txt, in place of what stood there.
//
// Laser: KSAY copies, each a document of its own, in a fixed-width font of 10 points. A column is 120 twips wide (12 to
// the inch), so that column c begins (c - 1) * 120 twips from the left edge of the sheet, and a line is as high as the
// font.
void fatura_yaz(Kurvo& kurvo, const SessionContext& session);
