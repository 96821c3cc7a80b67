// The receipt of a collection, two copies on one sheet.
#pragma once

#include "forms/kurvo.h"
#include "platform/money.h"
#include "session/context.h"

// Prints the collection that stands in FTahsil_TABLO4; `alinan` is the amount of the posting. The remaining
// debt and the next date are those of FTahsil_Tablo2 and TBORC, which must be refreshed already.
// Throws std::runtime_error in Turkish when it cannot be printed.
void makbuz_yaz(const Kurvo& kurvo, const SessionContext& session, Money alinan);
