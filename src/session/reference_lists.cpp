#include "session/reference_lists.h"

#include "platform/turkish.h"
#include "store/record.h"

#include <algorithm>

namespace {

std::vector<Lesson> load_lessons(store::Database& reference) {
    std::vector<Lesson> lessons;
    store::Recordset table = reference.OpenRecordset("Ders");
    store::scan_all(table, [&] { lessons.push_back({table["KOD"].text(), table["TANIM"].text()}); });
    return lessons;
}

// By character code, so names that begin with a Turkish letter come after "Z": so the office knows the list.
QStringList load_teachers(store::Database& reference) {
    QStringList entries;
    store::Recordset table = reference.OpenRecordset("Ogretmen");
    table.Index("SICILX");
    store::scan_all(table, [&] {
        entries.append(table["ADSOY"].text() + QStringLiteral("  (") + table["SICIL"].text() + QStringLiteral(")"));
    });
    std::sort(entries.begin(), entries.end(), turkish::before_by_code);
    return entries;
}

}  // namespace

ReferenceLists load_reference_lists(const QString& file, bool with_teachers) {
    store::Database reference = store::OpenDatabase(file);
    ReferenceLists lists;
    lists.lessons = load_lessons(reference);
    if (with_teachers) lists.teachers = load_teachers(reference);
    return lists;
}
