// The small text files that an installer adjusts once, read at start-up into the session.
//
// A file of the wrong form throws std::runtime_error in Turkish that names the file, the line, the item's number and
// what is missing or wrong.
#pragma once

#include "session/context.h"

#include <QStringList>

namespace parameter_files {

// data\Prmt.txt: place and size of a promissory note, pen width of printed lines. Made with defaults where missing.
void read_prmt(SessionContext& session);

// data\KasaTip.txt: the cash types, one a line as it stands; a single " " where the file is missing.
QStringList read_kasa_tip(const SessionContext& session);

// data\Fatura.txt: invoice printer, letter codes and the layout of a preprinted invoice. Made with defaults,
// and so without layout, where missing.
void read_fatura(SessionContext& session);

// c:\qlm\tak.txt: the state of the list and of the institution's name, into session.uiFlags; "11" where
// it is missing or empty.
void read_tak(SessionContext& session);

}  // namespace parameter_files

// Rewrites c:\qlm\tak.txt with session.uiFlags.
void bayrak_yaz(const SessionContext& session);
