// The payment statement of the student on the card: all instalments with their payments, the open ones, the totals.
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
    QString slips;     // the numbers of the cash slips, each followed by ", "
    QString payments;  // "DD/MM/YYYY-amount, " for each

    Money kalan() const { return tutar - odenen; }
};

class Statement {
public:
    Statement(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {}

    // Fills FToplu_Tablo2, FTahsil_Tablo2, TTUTAR, TODENEN, TBORC and FToplu_TFARK for the number in LONO, sets the
    // date of the notes panel to today and empties ODENEN. FToplu_KTUTAR holds the agreed fee already. Does nothing for
    // a user without the right to collect. Needs the open term.
    void odeme_durumu();

private:
    std::vector<Instalment> read_instalments();
    void show_all(const std::vector<Instalment>& instalments);
    void show_open(const std::vector<Instalment>& instalments);
    void show_totals(const std::vector<Instalment>& instalments);

    Kurvo& kurvo_;
    SessionContext& session_;
};
