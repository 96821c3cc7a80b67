// The options of the signed-on user.
#pragma once

#include "session/context.h"

// Reads the user's option characters from data\kbase.mdb into the session. A user without a record is not forced
// to today's date; the other two options are then empty.
void read_user_options(SessionContext& session);
