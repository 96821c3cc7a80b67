// The collections panel: which instalments are paid, how much on each, and with which document.
#pragma once

#include "forms/kurvo.h"
#include "platform/money.h"
#include "session/context.h"

#include <QObject>

class Terms;

// The first stage marks rows of FTahsil_Tablo2 by clicks or by an amount typed in ODENEN; the second stage, from
// CommandTAHSIL to CommandGERI, holds the marked rows in FTahsil_TABLO4, where their amounts may be corrected,
// and keeps the student from changing.
class CollectionScreen : public QObject {
    Q_OBJECT

public:
    // All must outlive it. A switch of the term ends the second stage.
    CollectionScreen(Kurvo& kurvo, SessionContext& session, Terms& terms);

    // Back to the first stage, from a posting too.
    void CommandGERI_Click();

private:
    void lay_out();
    void connect_first_stage();
    void connect_second_stage();
    void donem_degisecek();

    void CommandTAHSILAT_Click();
    void FTahsil_Tablo2_Click(int row);
    void ODENEN_Change();
    void CommandTAHSIL_Click();
    void FTahsil_TABLO4_MouseDown(int row, int column);
    void Cel_In_Change();
    void MOP_Click();
    void FOP_Click();
    void CommandOK2_Click();

    int spread(Money rest);
    void unmark_from(int row);
    int marked_count() const;
    void fill_chosen(int count);
    void clear_document();
    void propose_number(const QString& series);
    void show_invoice_details(bool shown);
    void copy_to_till();
    Money sum_of_chosen(int column) const;
    bool in_second_stage() const { return !kurvo_.FTahsil_Frame1->isHidden(); }

    Kurvo& kurvo_;
    SessionContext& session_;
    bool typing_ = false;  // the typing flag of ODENEN
    int edited_row_ = 0;   // of FTahsil_TABLO4, under Cel_In
};
