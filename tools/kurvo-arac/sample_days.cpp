#include "sample_days.h"

#include "platform/clock.h"
#include "sample_lists.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace sample {
namespace {

const QString none = u" "_s;
enum Kind { with_leave, without_leave, with_report };

bool has_lessons(const QDate& day, bool weekend) {
    return (day.dayOfWeek() >= Qt::Saturday) == weekend;
}

std::vector<QDate> lesson_days(const Student& student, const SchoolYear& year) {
    std::vector<QDate> days;
    for (QDate day = year.begin; day <= student.last_day; day = day.addDays(1))
        if (has_lessons(day, student.weekend)) days.push_back(day);
    return days;
}

// `count` of the days, each as likely as the other, in their order.
std::vector<QDate> some_of(const std::vector<QDate>& days, std::size_t count, Random& random) {
    std::vector<QDate> taken;
    for (std::size_t i = 0; i < days.size() && taken.size() < count; ++i) {
        const std::size_t left = days.size() - i;
        if (random.below(static_cast<int>(left)) < static_cast<int>(count - taken.size())) taken.push_back(days[i]);
    }
    return taken;
}

Kind kind_of_day(Random& random) {
    const int percent = random.below(100);
    if (percent < 50) return without_leave;
    return percent < 80 ? with_leave : with_report;
}

void write_day(store::Recordset& records, int student, const QDate& day, int count, Kind kind, Random& random) {
    const auto lesson_count = static_cast<int>(lessons.size());
    const int first = random.below(lesson_count);
    for (int i = 0; i < count; ++i) {
        int hours[] = {0, 0, 0};
        hours[kind] = random.between(1, 2);
        // Now and then one came late without a word on a day of leave.
        if (kind == with_leave && random.chance(10)) hours[without_leave] = 1;
        records.AddNew();
        records["ONO"] = student;
        records["TARIH"] = dates::key(day);
        records["DKOD"] = lessons[static_cast<std::size_t>((first + i) % lesson_count)].code;
        records["IZINLI"] = hours[with_leave];
        records["IZINSIZ"] = hours[without_leave];
        records["RAPORLU"] = hours[with_report];
        records.Update();
    }
}

void write_excuse(store::Recordset& records, int student, const QDate& day, Random& random) {
    records.AddNew();
    records["ONO"] = student;
    records["TARIH"] = dates::key(day);
    records["ACK"] = random.pick(excuses);
    records.Update();
}

QString hour_and_minute(const QTime& time) {
    return dates::time_key(time).left(4);
}

}  // namespace

int usual_absences(Random random) {
    return random.chance(20) ? 0 : random.between(1, 24);
}

void write_absences(AbsenceTables& tables, const Student& student, const SchoolYear& year, int rows, Random random) {
    const std::vector<QDate> days = lesson_days(student, year);
    const auto most = days.size() * lessons.size();
    auto left = std::min(static_cast<std::size_t>(std::max(rows, 0)), most);
    // Two lessons of a day as a rule, more where the days do not suffice.
    std::vector<QDate> taken = some_of(days, std::min(days.size(), (left + 1) / 2), random);
    for (std::size_t i = 0; i < taken.size(); ++i) {
        const std::size_t days_left = taken.size() - i;
        const std::size_t count = (left + days_left - 1) / days_left;
        const Kind kind = kind_of_day(random);
        write_day(tables.hours, student.number, taken[i], static_cast<int>(count), kind, random);
        if (kind != without_leave && random.chance(60)) write_excuse(tables.excuses, student.number, taken[i], random);
        left -= count;
    }
}

std::vector<Session> draw_sessions(const SchoolYear& year, int students, Random random) {
    static constexpr int ahead = 14;
    static const QTime starts[] = {QTime(15, 0), QTime(15, 50), QTime(16, 40), QTime(17, 30)};
    const int of_day = std::max(students / 60, 4);
    std::vector<Session> offered;
    for (QDate day = year.begin; day <= year.today.addDays(ahead); day = day.addDays(1)) {
        if (day.dayOfWeek() == Qt::Sunday) continue;
        for (int i = 0; i < of_day; ++i) {
            const auto lesson = static_cast<std::size_t>(random.below(static_cast<int>(lessons.size())));
            offered.push_back({day, starts[i % 4], lesson, random.chance(80) ? random.pick(topics) : none});
        }
    }
    return offered;
}

void write_sessions(store::Recordset& records, const Student& student, const SchoolYear& year,
                    const std::vector<Session>& offered) {
    static constexpr int session_minutes = 40;
    Random random = student.random.split(9);
    std::set<std::pair<QDate, QTime>> booked;
    for (int wanted = random.below(7); wanted > 0; --wanted) {
        const Session& session = offered[static_cast<std::size_t>(random.below(static_cast<int>(offered.size())))];
        if (student.left && session.date > student.last_day) continue;
        if (!booked.emplace(session.date, session.start).second) continue;
        const bool attended = session.date < year.today && random.chance(75);
        records.AddNew();
        records["ONO"] = student.number;
        records["TARIH"] = dates::key(session.date);
        records["SAAT"] = hour_and_minute(session.start);
        records["BITSAAT"] = hour_and_minute(session.start.addSecs(session_minutes * 60));
        records["KOD"] = lessons[session.lesson].code;
        records["SICIL"] = teacher_of(static_cast<int>(session.lesson));
        records["GIRDI"] = attended ? u"X"_s : none;
        records["KONU"] = session.topic;
        records.Update();
    }
}

}  // namespace sample
