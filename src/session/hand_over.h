// The file in which the launcher hands the session values over.
#pragma once

#include "session/context.h"

inline const QString hand_over_file = QStringLiteral("c:\\qlm\\log.txt");

// Reads the 18 items of c:\qlm\log.txt into the session and deletes the file, so that no start can be repeated
// with it. Returns the rights mask, which only start-up needs. Throws std::runtime_error in Turkish when the
// file is missing, too short (it is left then) or cannot be deleted.
QString take_hand_over(SessionContext& session);
