// The list of the term's students: its rows, its order and its closed state.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

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

    // After a term was opened: headings by number, list filled. The caller counts the rows.
    void term_opened();

    // Opens or closes the list as the first character of uiFlags says; writes no file.
    void apply_list_state();

    // Takes the student of the current row to the card; an empty list does nothing.
    void TABLO_Click();

private:
    void TabloAcKapa_Click();
    void show_list(bool open);

    Kurvo& kurvo_;
    SessionContext& session_;
    StudentCard& card_;
};
