// The payment statement of the student on the card: the open instalments and the three totals.
#pragma once

#include "forms/kurvo.h"
#include "platform/money.h"
#include "session/context.h"

#include <vector>

// One instalment as the statement shows it.
struct Instalment {
    QString vade;  // YYYYMMDD
    Money tutar;
    Money odenen;
    QString odsek;  // the word
    QString ack;
    QString cyer;

    Money kalan() const { return tutar - odenen; }
};

class Statement {
public:
    Statement(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {}

    // Fills FTahsil_Tablo2, TTUTAR, TODENEN and TBORC for the number in LONO and empties ODENEN. Does nothing
    // for a user without the right to collect. Needs the open term.
    void odeme_durumu();

private:
    std::vector<Instalment> read_instalments();
    void show_open(const std::vector<Instalment>& instalments);
    void show_totals(const std::vector<Instalment>& instalments);

    Kurvo& kurvo_;
    SessionContext& session_;
};
