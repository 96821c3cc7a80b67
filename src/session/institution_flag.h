// Whether papers carry the institution's name: the box CheckKad and its place in c:\qlm\tak.txt.
#pragma once

#include "session/context.h"

#include <QObject>

class Kurvo;

class InstitutionFlag : public QObject {
    Q_OBJECT

public:
    InstitutionFlag(Kurvo& kurvo, SessionContext& session);

    // Ticks the box as the second character of uiFlags says; writes no file.
    void apply();

    void CheckKad_Click();

private:
    Kurvo& kurvo_;
    SessionContext& session_;
};
