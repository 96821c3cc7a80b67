// From the launch to the running form, and the end of the session.
#pragma once

#include "session/context.h"
#include "session/institution_flag.h"
#include "session/terms.h"

#include <QObject>

class Kurvo;

class StartUp : public QObject {
    Q_OBJECT

public:
    StartUp(Kurvo& kurvo, SessionContext& session, Terms& terms, InstitutionFlag& institution_flag);

    // Takes the session values over, checks the data's version, opens the term and shows the filled form. False
    // when the data belong to another version: the user was told, and the session is ended. Throws with a Turkish
    // text that names the file on any failure.
    bool run();

    // Closes the term and takes the program out of the launcher's list of running programs, where there is one.
    // Throws when the list cannot be read or written; the term is closed then. A second call does nothing.
    void shut_down();

signals:
    // uiFlags was read: the list takes its open or closed state from the first character.
    void flags_read();

private:
    bool check_version();
    // The parameter files, in two halves: the later ones are read with the form on the screen.
    void parametre_oku_gosterimden_once();
    void parametre_oku_gosterimden_sonra();

    Kurvo& kurvo_;
    SessionContext& session_;
    Terms& terms_;
    InstitutionFlag& institution_flag_;
    bool ended_ = false;
};
