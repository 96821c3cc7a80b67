// The plan on the record form: what a student owes, entered row by row or laid out at once.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QObject>

#include <functional>

class Money;
struct SplitAmounts;

// The record form's part: the plan stores a student who is not on file yet behind the first instalments.
struct PlanOwner {
    std::function<bool()> student_stored;  // whether the number on the form names a row
    // Writes the student as the form shows it, without checks, and leaves studentTable on the new row.
    std::function<void()> store_student;
};

class InstalmentPlan : public QObject {
    Q_OBJECT

public:
    // Both functions of `owner` are needed.
    InstalmentPlan(KurvoYeni& form, SessionContext& session, PlanOwner owner);

    // Refills TABLO2, the four totals of the column "Yeni" and TFARK for the student whose number stands in ONO.
    void taksit_listele();

    // Proposes in KTUTAR the fee that the price list has for a track or a grade; empties it where it has none. Runs by
    // itself for what is chosen in BOLUM or DIN while no student is loaded.
    void kayit_bedeli_getir(const QString& text);

private:
    enum class Written { yes, date_is_paid, below_paid };
    enum class Removed { yes, gone, paid };

    void propose_fee(const QComboBox& choice);
    void ISKONTO_Click(int item);
    void TABLO2_Click();
    void TABLO2_DblClick();
    void CommandEKLE_Click();
    void CommandYARAT_Click();
    void CommandEKLE3_Click();
    void CommandGERI3_Click();

    std::int64_t student() const;
    QString date_of_edited_row() const;
    QString remark();
    Money plan_total() const;
    void empty_entry_row();
    void store_student_if_new();

    store::Recordset open_odeme();
    Written write_instalment();
    bool take_away(store::Recordset& odeme, const QString& vade);
    Removed remove_instalment(const QString& vade);
    void write_plan(const SplitAmounts& amounts, std::int64_t count);
    void add_row(store::Recordset& odeme, const QString& vade);
    void fill_row(store::Recordset& odeme, Money tutar);

    KurvoYeni& form_;
    SessionContext& session_;
    PlanOwner owner_;
};
