// Finding a student by a part of the name, among the rows that the list shows.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

class StudentList;

class NameSearch : public QObject {
    Q_OBJECT

public:
    NameSearch(Kurvo& kurvo, const SessionContext& session, StudentList& list);

    // Shows the search panel, unless the list is empty. Earlier text and hits stay.
    void CommandSBUL_Click();

    // Fills TABLO_SBUL with the rows of TABLO, in their present order, whose name holds the text of FSBUL_soyad,
    // compared exactly. Its hidden column 3 keeps the row of TABLO, which a later sort of TABLO makes stale.
    void CommandSARA_Click();

    // Takes the student who stands in that row of TABLO to the card.
    void TABLO_SBUL_Click(int row);

private:
    Kurvo& kurvo_;
    const SessionContext& session_;
    StudentList& list_;
};
