// The promissory notes over a student's plan, four to a sheet.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QObject>

class Money;
class PrintSurface;

// A note is printed for each instalment of the form "Senet" that is not paid, over what is open of it. A file or a
// printer that refuses is told, and nothing is printed then.
class PromissoryNotes : public QObject {
    Q_OBJECT

public:
    PromissoryNotes(KurvoYeni& form, SessionContext& session);

    void CommandSENET_Click();  // shows Frame2; nothing without a plan
    void CommandSOK_Click();    // keeps the words, prints, hides Frame2; VADE is left on the last date printed
    void CommandSGERI_Click();

private:
    void print_notes();
    void print_note(PrintSurface& paper, const QString& vade, Money open, double top);

    KurvoYeni& form_;
    SessionContext& session_;
};
