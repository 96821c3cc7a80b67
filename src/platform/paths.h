// Where a name that the office writes ("c:\okul\data\Bilgi.mdb", "\\server\share\x") lies on this machine.
#pragma once

#include <QString>
#include <QStringList>

namespace paths {

// The native path of `name`. A name with a drive or a share is looked up under the folder of drives
// ($KURVO_DRIVES, else "kurvo" in the user's data home); on Windows it is taken as it stands. A name without
// a drive is native already. Backslashes count as separators. A component that is missing in its exact
// spelling is found without regard to case, by the Turkish rule as well as the plain one.
QString native(const QString& name);

// The office's own name for a native path: with its drive or share where it lies below the folder of drives, else the
// path itself. On Windows it is taken as it stands but for the separators.
QString office_name(const QString& native_path);

// Whether a file (not a folder) lies there.
bool exists(const QString& name);

// Removes the file if it lies there; true when none is left.
bool remove(const QString& name);

// The names of the files in `folder` that end in `ending` (compared without case), sorted ascending by name.
QStringList files_in(const QString& folder, const QString& ending);

}  // namespace paths
