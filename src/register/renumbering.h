// A student gets another number: the panel of the record form and the way through all tables.
#pragma once

#include "forms/kurvo_yeni.h"
#include "register/main_screen.h"
#include "session/context.h"

#include <QObject>

#include <vector>

// Each table is written in commits of its own, the student's row last of all: while it has the old number, a
// renumbering that was cut can be started again with the same new number and goes on where it was.
class Renumbering : public QObject {
    Q_OBJECT

public:
    Renumbering(KurvoYeni& form, SessionContext& session, MainScreen main);

private:
    void CommandNODGS_Click();
    void CommandNOVAZGEC_Click();
    void CommandNODEGISTIR_Click();

    bool is_free(std::int64_t number, std::int64_t current);
    void refuse(const QString& words);
    void close_panel();
    void renumber(std::int64_t from, std::int64_t to);
    void repair_cash_book(std::int64_t from, std::int64_t to);
    void show_renumbered(std::int64_t from, std::int64_t to);

    KurvoYeni& form_;
    SessionContext& session_;
    MainScreen main_;
    std::vector<QWidget*> disabled_;  // by the panel, and enabled again behind it
};
