// A copy of all files of a school, taken while its workstations work, and the way back.
//
// Names are as in platform/paths.h. Every refusal is a std::runtime_error with a Turkish text.
#pragma once

#include <QString>
#include <QStringList>

namespace backup {

struct Taken {
    int files;
    bool one_moment;  // false where the office never paused: each database is of a moment of its own
};

// Copies everything under `root` (databases, parameter files, photos) to the folder `target`, which must be missing or
// empty and lie outside the school. The folder bears its name only once it is complete. A damaged database is refused.
Taken take(const QString& root, const QString& target);

// When the backup in this folder was taken, for the eye. Throws where it is none or one of its databases is damaged.
QString taken_at(const QString& source);

// Gives the school under `root` the content of the backup; a database that is in use gets it as one write. A damaged
// database of the school is set aside as "X.bozuk". Returns the databases that the backup does not hold: they stay.
// After a failure some files are those of the backup already; the same call again completes them.
QStringList put_back(const QString& source, const QString& root);

}  // namespace backup
