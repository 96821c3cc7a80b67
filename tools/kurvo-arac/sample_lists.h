// The names and words that the sample school is made of.
#pragma once

#include <QStringList>

#include <vector>

namespace sample {

struct Lesson {
    QString code;  // two letters
    QString name;
};

extern const std::vector<Lesson> lessons;
extern const QStringList teachers;  // the first has the register number `first_teacher`, and so on
inline constexpr int first_teacher = 101;
int teacher_of(int lesson);  // the register number of one who teaches lessons[lesson]

extern const QStringList girls, boys, women, men, surnames;
extern const QStringList streets, districts, occupations, schools, special_codes, referrers;
extern const QStringList excuses, topics, notes, reminders, leaving_reasons, cash_types;

// A price list row of kind "1": the track or the grade as the record form lists it, with its yearly fee.
struct Fee {
    QString choice;
    int amount;
};
extern const std::vector<Fee> fees;
int fee_of(const QString& choice);

struct Discount {
    int percent;
    QString name;
};
extern const std::vector<Discount> discounts;

// The route is its heading; a stop names streets separated by "#".
struct Route {
    QString heading;
    QStringList stops;
};
extern const std::vector<Route> routes;

// The grades that the school teaches: in front of a class code, as list position of DIN, and the pupil's age.
struct Grade {
    QString prefix;
    QString choice;
    int position;
    int age;
    bool has_track;
};
extern const std::vector<Grade> grades;
extern const QStringList tracks;  // by list position of BOLUM, from 0

}  // namespace sample
