// Takes from the panels what they show of a student. Headings and the names of the lessons stay.
#pragma once

#include <array>

class GridView;
class Kurvo;
class QLabel;

namespace emptying {

void card(Kurvo& kurvo);
void collections(Kurvo& kurvo);
// Lessons that stood there for the student's day alone, without a name, go too.
void attendance_day(Kurvo& kurvo);
void study_sessions(Kurvo& kurvo);
void overview(Kurvo& kurvo);
void statement(Kurvo& kurvo);
void search(Kurvo& kurvo);

// What is counted behind the lessons, and the sums below them.
void counters(GridView& lessons);
void totals(const std::array<QLabel*, 3>& sums);

}  // namespace emptying
