// Whether file locks in a folder really keep a second process out. Without them two workstations would destroy a file.
#pragma once

#include <QString>

namespace store {

// Tests the folder once in the life of this process; throws std::runtime_error naming `file` where locks do not hold.
// A folder in which this process may not write passes: nothing can be written there anyway.
void require_locks(const QString& folder, const QString& file);

// The test itself, by a small file beside the others: true when a second process could not take a held lock.
bool locks_hold(const QString& folder);

}  // namespace store
