// The list of the term's students: its rows, its order and its closed state.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <string>

class StudentCard;

class StudentList : public QObject {
    Q_OBJECT

public:
    StudentList(Kurvo& kurvo, SessionContext& session, StudentCard& card);

    // Refills TABLO from studentTable in the order of the numbers. Leaves listSortColumn as it is; the caller counts
    // the rows.
    void ogrenci_listele();

    // Sorts TABLO by column 0 (class), 1 (number) or 2 (name); the column that it is sorted by already does nothing.
    void liste_sirala(int column);

    // After an operation that added, renumbered or removed a student: refills, counts, and sorts again by the column
    // that the clerk had chosen.
    void listeyi_yenile();

    // After a term was opened: headings by number, list filled, nobody chosen in it. The caller counts the rows.
    void term_opened();

    // Opens or closes the list as the first character of uiFlags says; writes no file.
    void apply_list_state();

    // Takes the student of the current row to the card; an empty list does nothing.
    void TABLO_Click();

private:
    void TabloAcKapa_Click();
    void show_list(bool open);

    // What the rows were read from, and the grid as it was then: the start opens the term and switches to it, and a
    // clerk may choose the open term again.
    struct Filled {
        std::string file;
        QString hideArchived;
        std::uint64_t revision;

        bool operator==(const Filled&) const = default;
    };

    Kurvo& kurvo_;
    SessionContext& session_;
    StudentCard& card_;
    std::optional<Filled> filled_;
};
