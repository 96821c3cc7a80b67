// Whether the data files belong to this version of the program.
#pragma once

#include "session/context.h"

inline const QString program_version = QStringLiteral("21.1");

// Compares the version in this program's row of data\Dsys.mdb with the program's own. A difference behind the
// first two characters, or a launcher that names no version, is settled by writing the program's version there
// and into session.versionText. False when the data need the update program first; nothing is written then and
// the file is closed. Throws std::runtime_error when the file or the row is missing.
bool version_matches(SessionContext& session);

// What the user is told then.
QString version_mismatch_text();
