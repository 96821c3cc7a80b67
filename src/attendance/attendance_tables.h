// What entry and summaries of attendance share: the tables of a term that hold it, and the look of their grids.
#pragma once

#include "platform/grid_view.h"
#include "session/lesson_grid.h"
#include "store/record.h"

#include <array>
#include <string_view>

// Absences and the excuses of their days; those of class and those of compulsory study sessions are alike.
struct AttendanceTables {
    std::string_view absences, excuses;

    // In the order of student, day and lesson.
    store::Recordset open_absences(store::Database& term) const;
    // In the order of student and day.
    store::Recordset open_excuses(store::Database& term) const;
};

inline constexpr AttendanceTables class_attendance{"Devam", "Dmazeret"};
inline constexpr AttendanceTables study_attendance{"EtudDevam", "Emazeret"};

// Hours missed with leave, without leave, with a report.
inline constexpr std::array<std::string_view, 3> counter_fields{"IZINLI", "IZINSIZ", "RAPORLU"};
using Hours = std::array<double, counter_fields.size()>;

Hours hours_of(store::Recordset& absence);

namespace lesson_grid {

int row_of(const GridView& grid, const QString& code);  // -1 where no row has it

}  // namespace lesson_grid
