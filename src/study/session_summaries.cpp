#include "study/session_summaries.h"

#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/slots.h"
#include "session/lesson_grid.h"
#include "session/terms.h"
#include "study/reference_names.h"
#include "study/session_times.h"
#include "study/student_sessions.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

constexpr int lesson_of_record = 3;

struct Count {
    int booked = 0, missed = 0;
};

QHash<QString, Count> count_by_lesson(const std::vector<StudentSession>& sessions) {
    QHash<QString, Count> counts;
    for (const StudentSession& session : sessions) {
        Count& count = counts[session.kod.text()];
        ++count.booked;
        if (session.girdi == u" ") ++count.missed;
    }
    return counts;
}

// A session whose lesson is no longer taught counts nowhere; none at all is an empty cell.
void show_counts(GridView& lessons, const QHash<QString, Count>& counts) {
    const GridView::Filling filling(lessons);
    const auto digits = [](int count) { return count == 0 ? QString() : QString::number(count); };
    for (int row = lessons.fixed_rows(); row < lessons.rows(); ++row) {
        const Count count = counts.value(lessons.text(row, lesson_grid::code));
        lessons.set_row(row, {digits(count.booked), digits(count.missed)}, lesson_grid::first_counter);
    }
}

std::vector<QStringList> as_rows(const std::vector<StudentSession>& sessions, const QString& reference_file) {
    std::vector<QStringList> rows;
    if (sessions.empty()) return rows;
    ReferenceNames names(reference_file);
    for (const StudentSession& session : sessions)
        rows.push_back({session.girdi, dates::shown(session.tarih), session_times::shown(session.saat),
                        names.lesson(session.kod), names.teacher(session.sicil), session.konu});
    return rows;
}

}  // namespace

SessionSummaries::SessionSummaries(Kurvo& kurvo, SessionContext& session, Terms& terms)
    : kurvo_(kurvo), session_(session) {
    GridView* lessons = kurvo_.FToplu_DERSLER_ETUD;
    const auto narrow = [this](int row, int) { FToplu_DERSLER_ETUD_Click(row); };
    on(lessons, &GridView::cell_clicked, this, narrow);
    on(lessons, &GridView::fixed_clicked, this, narrow);
    on(&terms, &Terms::leaving, this, [this] { etud_kayitlari_.clear(); });
}

void SessionSummaries::etud_toplu_doldur() {
    if (kurvo_.CommandTOPLU->isHidden()) return;
    const std::vector<StudentSession> sessions = read_sessions(session_.termDb, kurvo_.LONO->text());
    show_counts(*kurvo_.FToplu_DERSLER_ETUD, count_by_lesson(sessions));
    etud_kayitlari_ = as_rows(sessions, session_.reference_file());
    show_records(etud_kayitlari_);
}

// By name: a session whose lesson is no longer taught carries the code as its name, which no row here has.
void SessionSummaries::FToplu_DERSLER_ETUD_Click(int row) {
    const QString name = kurvo_.FToplu_DERSLER_ETUD->text(row, lesson_grid::name);
    std::vector<QStringList> of_lesson;
    std::ranges::copy_if(etud_kayitlari_, std::back_inserter(of_lesson),
                         [&](const QStringList& record) { return record[lesson_of_record] == name; });
    show_records(of_lesson);
}

void SessionSummaries::show_records(const std::vector<QStringList>& records) {
    GridView& grid = *kurvo_.FToplu_ETUDLER;
    const GridView::Filling filling(grid);
    grid.set_rows(1);
    grid.set_rows(static_cast<int>(records.size()) + 1);
    int row = 1;
    for (const QStringList& record : records) grid.set_row(row++, record);
}
