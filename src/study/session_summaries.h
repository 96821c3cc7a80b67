// The tab "Etüdler" of the overview: a student's sessions by lesson and one by one.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <vector>

class Terms;

class SessionSummaries : public QObject {
    Q_OBJECT

public:
    // All must outlive it. Who leaves the student or the term leaves no sessions in memory.
    SessionSummaries(Kurvo& kurvo, SessionContext& session, Terms& terms);

    // Fills FToplu_ETUDLER with all sessions of the student in LONO by date and start, and counts them in
    // FToplu_DERSLER_ETUD. Does nothing where the user's rights hide the overview, whose grids are not laid out then.
    void etud_toplu_doldur();

private:
    void FToplu_DERSLER_ETUD_Click(int row);
    void show_records(const std::vector<QStringList>& records);

    Kurvo& kurvo_;
    SessionContext& session_;
    std::vector<QStringList> etud_kayitlari_;  // the rows of FToplu_ETUDLER before any narrowing
};
