#include "attendance/attendance_summaries.h"

#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "session/emptying.h"
#include "session/terms.h"

#include <algorithm>

namespace {

namespace day_grid {

constexpr int date = 0, lesson = 4, excuse = 5;

}  // namespace day_grid

using Totals = std::array<QLabel*, counter_fields.size()>;

// The captions are the totals: what they show is read back and grows.
class Adding {
public:
    explicit Adding(const Totals& totals) : totals_(totals) {
        std::ranges::transform(totals_, sums_.begin(), [](const QLabel* total) { return numbers::val(total->text()); });
    }
    ~Adding() {
        for (std::size_t i = 0; i < sums_.size(); ++i) totals_[i]->setText(numbers::plain(sums_[i]));
    }
    Adding(const Adding&) = delete;
    Adding& operator=(const Adding&) = delete;

    void add(const Hours& hours) { std::ranges::transform(sums_, hours, sums_.begin(), std::plus()); }

private:
    const Totals& totals_;
    Hours sums_;
};

struct TaughtLesson {
    int row;
    QString name;
    Hours missed{};
};

// Of two rows with one code the first counts.
QHash<QString, TaughtLesson> lessons_by_code(const GridView& grid) {
    QHash<QString, TaughtLesson> lessons;
    for (int row = grid.rows() - 1; row >= grid.fixed_rows(); --row)
        lessons.insert(grid.text(row, lesson_grid::code), {row, grid.text(row, lesson_grid::name)});
    return lessons;
}

void add_missed(Hours& sums, const Hours& hours) {
    for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += std::max(hours[i], 0.0);
}

// What was never missed stays empty.
void show_missed(GridView& grid, const QHash<QString, TaughtLesson>& lessons) {
    for (const TaughtLesson& lesson : lessons) {
        int column = lesson_grid::first_counter;
        for (const double missed : lesson.missed) {
            if (missed > 0) grid.set_text(lesson.row, column, numbers::plain(missed));
            ++column;
        }
    }
}

QStringList date_and_hours(const AttendanceSummaries::Absence& absence) {
    QStringList cells{dates::shown(absence.date)};
    for (const double missed : absence.hours) cells << numbers::plain(missed);
    return cells;
}

}  // namespace

AttendanceSummaries::AttendanceSummaries(Kurvo& kurvo, SessionContext& session, Terms& terms)
    : kurvo_(kurvo), session_(session) {
    connect_days(kurvo_.FToplu_DEVAMS);
    connect_days(kurvo_.FToplu_DEVAMSe);
    const auto narrow = [this](int row, int) { FToplu_DERSLER_Click(row); };
    on(kurvo_.FToplu_DERSLER, &GridView::cell_clicked, this, narrow);
    on(kurvo_.FToplu_DERSLER, &GridView::fixed_clicked, this, narrow);
    on(&terms, &Terms::leaving, this, [this] { devam_kayitlari_.clear(); });
}

void AttendanceSummaries::connect_days(GridView* days) {
    const auto show = [this, days](int row, int) { FToplu_DEVAMS_Click(*days, row); };
    on(days, &GridView::cell_clicked, this, show);
    on(days, &GridView::fixed_clicked, this, show);
}

AttendanceSummaries::Tab AttendanceSummaries::class_tab() const {
    return {class_attendance,
            *kurvo_.FToplu_DERSLER,
            *kurvo_.FToplu_DEVAMS,
            {kurvo_.FToplu_TOP1, kurvo_.FToplu_TOP2, kurvo_.FToplu_TOP3}};
}

AttendanceSummaries::Tab AttendanceSummaries::study_tab() const {
    return {study_attendance,
            *kurvo_.FToplu_DERSLERe,
            *kurvo_.FToplu_DEVAMSe,
            {kurvo_.FToplu_TOP1e, kurvo_.FToplu_TOP2e, kurvo_.FToplu_TOP3e}};
}

// One table in memory serves both: the study sessions come last and stay in it.
void AttendanceSummaries::devam_toplu_doldur() {
    fill(class_tab());
    fill(study_tab());
}

void AttendanceSummaries::fill(const Tab& tab) {
    const GridView::Filling filling_lessons(tab.lessons), filling_days(tab.days);
    emptying::counters(tab.lessons);
    emptying::totals(tab.totals);
    read_absences(tab);
    show_days(tab);
}

void AttendanceSummaries::read_absences(const Tab& tab) {
    devam_kayitlari_.clear();
    QHash<QString, TaughtLesson> lessons = lessons_by_code(tab.lessons);
    store::Recordset absences = tab.tables.open_absences(session_.termDb);
    store::scan_prefix(absences, {numbers::val(kurvo_.LONO->text())}, [&] {
        Absence absence{absences["DKOD"].text(), absences["TARIH"].text(), hours_of(absences), {}};
        if (const auto lesson = lessons.find(absence.code); lesson != lessons.end()) {
            absence.lesson = lesson->name;
            add_missed(lesson->missed, absence.hours);
        }
        devam_kayitlari_.push_back(std::move(absence));
    });
    show_missed(tab.lessons, lessons);
}

// By day, in one read: over the office's network a seek for each day would take a lock of its own.
QHash<QString, QString> AttendanceSummaries::read_excuses(const Tab& tab) {
    QHash<QString, QString> by_day;
    store::Recordset excuses = tab.tables.open_excuses(session_.termDb);
    store::scan_prefix(excuses, {numbers::val(kurvo_.LONO->text())},
                       [&] { by_day.insert(excuses["TARIH"].text(), excuses["ACK"].text()); });
    return by_day;
}

void AttendanceSummaries::show_days(const Tab& tab) {
    tab.days.set_rows(static_cast<int>(devam_kayitlari_.size()) + 1);
    if (devam_kayitlari_.empty()) return;
    const QHash<QString, QString> excuses = read_excuses(tab);
    Adding totals(tab.totals);
    int row = 1;
    for (const Absence& absence : devam_kayitlari_) {
        tab.days.set_row(row, date_and_hours(absence));
        tab.days.set_text(row, day_grid::lesson, absence.lesson);
        tab.days.set_text(row, day_grid::excuse, excuses.value(absence.date));
        totals.add(absence.hours);
        ++row;
    }
}

void AttendanceSummaries::FToplu_DEVAMS_Click(const GridView& days, int row) {
    const QString excuse = days.text(row, day_grid::excuse);
    if (excuse.isEmpty()) return;
    prompt::tell(excuse, days.text(row, day_grid::date) + QStringLiteral(" Tarihindeki Mazereti"));
}

// Looks in the table in memory as it is, although that holds the study sessions by then.
void AttendanceSummaries::FToplu_DERSLER_Click(int row) {
    const Tab tab = class_tab();
    const QString code = tab.lessons.text(row, lesson_grid::code);
    const GridView::Filling filling(tab.days);
    tab.days.clear();
    tab.days.set_rows(1);
    tab.days.set_row(
        0, {QStringLiteral("  Tarih"), QStringLiteral("İzinli"), QStringLiteral("İzinsiz"), QStringLiteral("Raporlu")});
    emptying::totals(tab.totals);
    Adding totals(tab.totals);
    for (const Absence& absence : devam_kayitlari_) {
        if (absence.code != code) continue;
        tab.days.set_rows(tab.days.rows() + 1);
        tab.days.set_row(tab.days.rows() - 1, date_and_hours(absence));
        totals.add(absence.hours);
    }
}
