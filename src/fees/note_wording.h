// The wording of a promissory note: fixed captions and seven free words, which the office keeps in data\Senet.txt.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <array>

// Captions and words are those on the panel Frame2, which need not be shown. All file work throws
// std::runtime_error in Turkish that names the file and the line.
namespace note_wording {

// The words of the file into sx1 to sx7; a missing file is made with the first words, which then are used. Then the
// guardian of the student on the form as the debtor.
void fill_panel(KurvoYeni& form, const SessionContext& session);

// The words on the panel become those of the file.
void keep_words(const KurvoYeni& form, const SessionContext& session);

// The five lines of the note over an amount in words. Without a date the first one ends before it.
std::array<QString, 5> lines(const KurvoYeni& form, const QString& date_in_words, const QString& amount_in_words);

// "5 Ekim 2026".
QString date_in_words(const QDate& date);

}  // namespace note_wording
