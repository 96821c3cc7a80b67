// The dossier of the student on the card: the choice of its sections and the print.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <vector>

// While FToplu_FrameYaz is open the student cannot be changed and the panels cannot be left.
class Dossier : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    Dossier(Kurvo& kurvo, SessionContext& session);

    // The payment plan, as a posting prints it: the payments alone below the student's identity. Throws
    // std::runtime_error in Turkish when it cannot be printed.
    void plan_yaz();

private:
    // Does nothing while LONO holds another number than the card's, whose dossier would bear it.
    void CommandYAZF_Click();
    void CommandVAZGECY_Click();
    void CommandYAZFT_Click();

    void offer_sections();
    bool wanted(int box) const;
    void print(const QString& paper_name);
    std::vector<QWidget*> locked_controls() const;

    Kurvo& kurvo_;
    SessionContext& session_;
};
