// The terms of the school: the list SDONEM and the switch to another term.
#pragma once

#include "session/context.h"

#include <QObject>

class Kurvo;

// A term exists when its file lies in the data folder; its code is the text before "ogr" in the file's name.
class Terms : public QObject {
    Q_OBJECT

public:
    Terms(Kurvo& kurvo, SessionContext& session);

    // Opens the file of session.termCode with its students in the order of their numbers, has the list filled
    // and its rows counted. No term may be open. Throws when the file is missing.
    void open();
    // Closes the open term; does nothing where none is open.
    void close();

    // Fills SDONEM: the current term, then the others in the order of their file names. Selects the first, which
    // runs the switch.
    void donem_listele();

    // Empties what is shown of the former student and opens the term that SDONEM shows, also when it is the open
    // one already. A file that has vanished throws; no term is open then.
    void donem_degistir();

    // Empties the card and all that is shown of its student: nobody is chosen then. The hits of the search stay.
    void leave_student();

signals:
    // The student on the card, or the term, is about to be left: whatever holds the student's choice lets go of it.
    void leaving();
    // studentTable is open: the list is to be filled, headings by number.
    void opened();

private:
    void forget_student();

    Kurvo& kurvo_;
    SessionContext& session_;
};
