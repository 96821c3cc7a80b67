// The lessons and teachers of the reference database, as the panels offer them.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct Lesson {
    QString code;
    QString name;
};

// Loaded once at start-up; what another program changes afterwards is seen at the next start. The panels fill
// their grids and lists from here.
struct ReferenceLists {
    std::vector<Lesson> lessons;  // in the order of the table
    QStringList teachers;         // "name  (number)" by character code
};

// Opens the reference database `file` and closes it again. The teachers are read only for a user who books
// study sessions.
ReferenceLists load_reference_lists(const QString& file, bool with_teachers);
