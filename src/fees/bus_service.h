// The panel of bus routes and stops: one is picked for the student on the record form.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QObject>

class BusService : public QObject {
    Q_OBJECT

public:
    BusService(KurvoYeni& form, SessionContext& session);

private:
    void CommandSERVISBUL_Click();
    void TABLO_Click();
    void ServisCIK_Click();
    void fill_stops();
    void mark_route(int row);

    KurvoYeni& form_;
    SessionContext& session_;
};
