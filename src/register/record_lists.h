// The lists that the record form offers, and the two that learn what a clerk typed.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

namespace record_lists {

// Fills all lists from the fixed choices, the text files, the reference file and the term; each shows its first entry,
// a list of free text nothing. Disables the bus button where no bus is on file.
void fill(KurvoYeni& form, SessionContext& session);

QString schools_file(const SessionContext& session);
QString special_codes_file(const SessionContext& session);

// Takes a value that the list does not have yet into the list and rewrites its file, both in the order of the
// character codes. The text in the list's box stays. One blank is no value. A file that cannot be written is told.
void learn(QComboBox& list, const QString& file, const QString& value);

}  // namespace record_lists
