// The panels that are filled from many rows: attendance and sessions of the overview, and the day board.
#include "attendance/attendance_summaries.h"
#include "bare_panels.h"
#include "benches.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "rich_student.h"
#include "session/panel_setup.h"
#include "session/terms.h"
#include "study/day_board.h"
#include "study/session_summaries.h"

#include <QCoreApplication>

#include <array>
#include <stdexcept>

namespace bench {

namespace {

constexpr int absences = 1000, sessions = 500, all_sessions = 200'000, bookings = 300, groups = 60;
constexpr int fills = 10;  // of each run
const QString board_day = QStringLiteral("20290301");

// The codes of ten lessons; that of a row follows from its place, so that each has hours.
#define LESSON_AT(place) "substr('TRMTGMFZKMBYTHFLEDRH', 1+2*((" place ")%10), 2)"

void spread_over_lessons(RawFile& term, double student) {
    for (const char* sql : {"UPDATE Devam SET DKOD=" LESSON_AT("rowid") " WHERE ONO=?",
                            "UPDATE Etud SET KOD=" LESSON_AT("rowid") ", SICIL=101+rowid%12 WHERE ONO=?",
                            "DELETE FROM Dmazeret WHERE ONO=?",
                            "INSERT INTO Dmazeret (ONO, TARIH, ACK) SELECT ONO, TARIH, 'Sağlık raporu' FROM Devam "
                            "WHERE ONO=? AND rowid%4=0"})
        term.prepare(sql).bind(1, student).run();
}

// As many bookings of other days as the table needs, at most eight for each student, and a day of sixty sessions that
// five students share each.
void book(RawFile& term) {
    term.prepare(
            "INSERT INTO Etud (ONO, TARIH, SAAT, BITSAAT, KOD, SICIL, GIRDI, KONU) "
            "SELECT ONO, column1, '1500', '1540', 'MT', 102, ' ', 'Üslü sayılar' FROM "
            "(VALUES ('20290104'),('20290105'),('20290106'),('20290107'),('20290108'),('20290111'),('20290112'),"
            "('20290113')), Ogrenci LIMIT max(0, ?-(SELECT COUNT(*) FROM Etud))")
        .bind(1, all_sessions - bookings)
        .run();
    term.prepare(
            "INSERT INTO Etud (ONO, TARIH, SAAT, BITSAAT, KOD, SICIL, GIRDI, KONU) "
            "SELECT ONO, ?, printf('%02d00', 9+g%10), printf('%02d40', 9+g%10), " LESSON_AT(
                "g/10") ", 101+g/10, ' ', 'Türev' "
                        "FROM (SELECT ONO, (row_number() OVER (ORDER BY ONO)-1)%60 AS g FROM Ogrenci LIMIT 300)")
        .bind(1, board_day.toStdString())
        .run();
}

// Two students take turns, so that texts change with each fill.
void make_rows(const std::array<double, 2>& students) {
    RawFile term(BigSchool::term_file);
    term.run("BEGIN IMMEDIATE");
    book(term);
    term.run("COMMIT");
    for (const double student : students) give_rows(student, {12, 20, absences, sessions});
    term.run("BEGIN IMMEDIATE");
    for (const double student : students) spread_over_lessons(term, student);
    term.run("COMMIT");
}

// The form with the overview's and the board's handlers alone.
struct Panels {
    Panels();

    SessionContext session;
    Kurvo kurvo;
    Terms terms{kurvo, session};
    AttendanceSummaries absences{kurvo, session, terms};
    SessionSummaries sessions{kurvo, session, terms};
    DayBoard board{kurvo, session};
};

Panels::Panels() {
    session.dataRoot = BigSchool::root;
    session.termCode = QStringLiteral("2026");
    session.reference = load_reference_lists(session.reference_file(), true);
    for (QPushButton* button : {kurvo.CommandTOPLU, kurvo.CommandETUD}) button->show();
    set_up_list(kurvo);
    set_up_panels(kurvo, session);
    fill_lessons(kurvo, session);
    terms.open();
    kurvo.show();
    QCoreApplication::processEvents();
    kurvo.FEtud_TARIH->set_key(board_day);
}

void require_rows(const GridView& grid, int rows) {
    if (grid.rows() != rows + 1) throw std::runtime_error("a panel does not show its rows");
}

}  // namespace

void measure_panels(Table& table, const BigSchool& school) {
    const std::string attendance = "devam_toplu_doldur, 1,000 absences", study = "etud_toplu_doldur, 500 sessions",
                      day = "gun_tahtasi_doldur, 300 bookings of 200,000";
    if (!table.wants(attendance) && !table.wants(study) && !table.wants(day)) return;
    const std::array<double, 2> students{school.numbers()[5], school.numbers()[6]};
    make_rows(students);
    Panels panels;
    BareAbsences bare_absences;
    BareSessions bare_sessions;
    BareBoard bare_board;

    std::size_t turn = 0;
    const auto next = [&] { return students[turn++ % students.size()]; };
    const auto of_next = [&](const auto& fill) {
        return [&, fill] {
            return timed(
                [&] {
                    for (int i = 0; i < fills; ++i) fill();
                },
                fills);
        };
    };
    const auto with_number = [&](const auto& fill) {
        return of_next([&, fill] {
            panels.kurvo.LONO->setText(QString::number(next(), 'f', 0));
            fill();
        });
    };
    table.compare(attendance, 2, with_number([&] { panels.absences.devam_toplu_doldur(); }),
                  of_next([&] { bare_absences.fill(next()); }));
    table.compare(study, 2, with_number([&] { panels.sessions.etud_toplu_doldur(); }),
                  of_next([&] { bare_sessions.fill(next()); }));
    table.compare(day, 2, of_next([&] { panels.board.gun_tahtasi_doldur(); }),
                  of_next([&] { bare_board.fill(board_day.toStdString()); }));
    if (table.wants(attendance)) require_rows(*panels.kurvo.FToplu_DEVAMS, absences);
    if (table.wants(study)) require_rows(*panels.kurvo.FToplu_ETUDLER, sessions);
    if (table.wants(day)) require_rows(*panels.kurvo.FEtud_Tablo2, groups);
}

}  // namespace bench
