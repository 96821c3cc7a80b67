// The day board: the study sessions of one day, of all students.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

class ScratchBoard;

class DayBoard : public QObject {
    Q_OBJECT

public:
    // Both must outlive it. Fills the board on every change of FEtud_TARIH while a term is open.
    DayBoard(Kurvo& kurvo, SessionContext& session);

    // Fills FEtud_Tablo2 with the sessions of FEtud_TARIH, by start, end, lesson and teacher, and writes its heading.
    // Students who share all four are one row. A term must be open. Throws where c:\qlm\siletud.mdb cannot be made.
    void gun_tahtasi_doldur();

private:
    void show_rows(ScratchBoard& scratch);

    Kurvo& kurvo_;
    SessionContext& session_;
};
