// A workstation that takes payments: the form with the handlers of collections, on a school of its own.
#pragma once

#include "collections/collection_screen.h"
#include "collections/posting.h"
#include "collections/statement.h"
#include "platform/print_surface.h"
#include "session/terms.h"
#include "support/grids.h"
#include "support/school.h"

#include <vector>

// The school of the till. What a handler throws and what is printed is kept.
class TillFiles : public School {
public:
    TillFiles();
    ~TillFiles();

    static constexpr int payer = 1250;

    void instalment(const QString& vade, double tutar, double odenen = 0, int ono = payer) const;
    QStringList odeme() const { return rows("Odeme", {"ONO", "VADE", "ODENEN"}); }
    QStringList tahsilat() const { return rows("Tahsilat", {"ONO", "VADE", "TARIH", "SAAT", "ODENEN"}); }

    QStringList failures;
    std::vector<PrintSurface::Document> papers;
};

class Till {
public:
    explicit Till(CollectionPapers papers = {[] {}, [] {}});

    Kurvo kurvo;
    SessionContext session;
    Terms terms;
    Statement statement;
    CollectionScreen screen;
    Posting posting;

    // What the card does with a number on file.
    void pick();
    // Into ODENEN, in place of what stands there.
    void type_amount(const QString& keys) { type(kurvo.ODENEN, keys); }
    void click_row(int row) { click_cell(*kurvo.FTahsil_Tablo2, row, 1); }
    // The first stage's rows: "X" and the amount, or nothing.
    QStringList marks() const;
    void begin_second_stage() { press(kurvo.CommandTAHSIL); }
    void correct(int row, const QString& keys);
    void press(QAbstractButton* button);
    // All of a collection; no option for none.
    void collect(const QString& amount, QRadioButton* option);

private:
    void type(QLineEdit* box, const QString& keys);
};
