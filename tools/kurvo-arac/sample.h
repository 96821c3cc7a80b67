// Fills a school with believable students, so that the program can be tried, shown and measured. The same seed
// gives the same rows on every machine and on every day.
#pragma once

#include <QDate>
#include <QString>

#include <cstdint>
#include <optional>

namespace sample {

// The clerk of the sample school: its user, and who took the students in.
inline const QString user_code = QStringLiteral("MEMUR");

struct Scale {
    int students = 500;
    std::optional<int> instalments;  // of each plan (1 to 12); else they differ
    std::optional<int> absences;     // rows of Devam of each student (at most 200); else they differ
    int photos = 1000;               // photographs are drawn for no more than the first of the students
};

// The school year of a term: that of the first four digits in its code, else 2026. The sample's present day is
// in November of that year, whatever the clock says.
struct SchoolYear {
    QDate begin;
    QDate today;
};
SchoolYear school_year(const QString& term);

// Lessons, teachers, prices, bus routes, the user, the lists "data\KasaTip.txt", "data\okullar.txt" and
// "data\OzelKod.txt". The files must be new.
void fill_reference(const QString& root);

// Students, plans, collections with their rows in the cash book, absences, sessions, notes and photographs of a
// term whose file is new. The reference file must be filled; its cash book goes on where it stands.
void fill_term(const QString& root, const QString& term, std::uint64_t seed, const Scale& scale);

}  // namespace sample
