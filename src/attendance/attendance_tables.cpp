#include "attendance/attendance_tables.h"

#include <algorithm>

store::Recordset AttendanceTables::open_absences(store::Database& term) const {
    store::Recordset records = term.OpenRecordset(absences);
    records.Index("OTDX");
    return records;
}

store::Recordset AttendanceTables::open_excuses(store::Database& term) const {
    store::Recordset records = term.OpenRecordset(excuses);
    records.Index("OTX");
    return records;
}

Hours hours_of(store::Recordset& absence) {
    Hours hours;
    std::ranges::transform(counter_fields, hours.begin(),
                           [&](std::string_view field) { return absence[field].number(); });
    return hours;
}

int lesson_grid::row_of(const GridView& grid, const QString& code) {
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row)
        if (grid.text(row, lesson_grid::code) == code) return row;
    return -1;
}
