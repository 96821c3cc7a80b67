// Which panels the user may open.
#pragma once

#include "session/context.h"

#include <QString>

class Kurvo;

// Shows the panel buttons whose character of the mask is "1", one below the other without gaps, and hides the
// rest; sets session.collectionsAllowed. Characters: record form, collections, attendance, study sessions,
// notes, overview.
void apply_rights_mask(const QString& mask, Kurvo& kurvo, SessionContext& session);
