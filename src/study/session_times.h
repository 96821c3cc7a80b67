// Times of study sessions: hhmm in the tables, hh:mm on the screen. Cut by position as the text stands: an hour is
// whatever the clerk typed.
#pragma once

#include <QString>

namespace session_times {

inline QString hours(const QString& hh_mm) {
    return hh_mm.left(2);
}
inline QString minutes(const QString& hh_mm) {
    return hh_mm.mid(3, 2);
}
inline QString shown(const QString& hhmm) {
    return hhmm.left(2) + u':' + hhmm.mid(2, 2);
}
inline QString key_of_shown(const QString& hh_mm) {
    return hours(hh_mm) + minutes(hh_mm);
}

}  // namespace session_times
