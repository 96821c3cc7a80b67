// A session as the hand-over leaves it: the school of the test, its term 2026 and its user AYLIN.
#pragma once

#include "session/context.h"
#include "support/school.h"

inline SessionContext known_session(const School& school) {
    SessionContext session;
    session.dataRoot = school.data_root();
    session.termCode = school.term();
    session.userCode = QStringLiteral("AYLIN");
    session.versionText = QStringLiteral("21.1");
    return session;
}
