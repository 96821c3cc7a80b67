// Absences, excuses and study sessions of the sample school's students.
#pragma once

#include "sample_students.h"
#include "store/record.h"

#include <vector>

namespace sample {

// Where absences of one kind go: class (Devam, Dmazeret) or compulsory study (EtudDevam, Emazeret).
struct AbsenceTables {
    store::Recordset hours;
    store::Recordset excuses;
};

// `rows` absences on the student's days of lessons, and the excuses of some of these days.
void write_absences(AbsenceTables& tables, const Student& student, const SchoolYear& year, int rows, Random random);

// How many absences a student has where no number is asked for.
int usual_absences(Random random);

struct Session {
    QDate date;
    QTime start;
    std::size_t lesson = 0;
    QString topic;
};

// The sessions that the teachers offer, up to two weeks ahead.
std::vector<Session> draw_sessions(const SchoolYear& year, int students, Random random);
// Books some of them for the student; those that lie behind are mostly marked "X".
void write_sessions(store::Recordset& records, const Student& student, const SchoolYear& year,
                    const std::vector<Session>& offered);

}  // namespace sample
