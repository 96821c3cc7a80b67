// The student on the record form: entering a number, loading the row, clearing, and the small handlers.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QObject>

#include <functional>

// For one opening of the form. studentTable of the session must be open.
class RecordForm : public QObject {
    Q_OBJECT

public:
    // `taksit_listele` refills the instalment plan of the student whose number stands in ONO.
    RecordForm(KurvoYeni& form, SessionContext& session, std::function<void()> taksit_listele);

    // Rights, lists and first values, then the form is shown. With a `number` above 0 it opens on that student or on
    // a new record of that number, otherwise ONO waits empty.
    void open(double number);

    // Fills the controls and the plan from the current row of studentTable.
    void dosyadan_aktar();
    // Resets all controls but ONO and SAKLA. Leaves kayitVar and eskiAyrilis.
    void form_temizle();
    // Takes the outer blanks off the texts, and changes no letter.
    void trimle();

    // Looks the number up, loads the student or begins a new record, and locks the number.
    void ONO_LostFocus();
    void CommandSON_Click();
    void CommandTEMIZLE_Click();

    // The number in ONO, 0 where there is none.
    double number() const;
    // Moves studentTable to the row of that number, wherever it was led meanwhile; false where there is none.
    bool seek_student();
    // Whether one of the values that are published differs from what stood there when the number was entered.
    // Outer blanks do not count.
    bool published_values_differ() const;

    bool kayitVar = false;  // the number in ONO names an existing row
    QString eskiAyrilis;    // reason of leaving as loaded, trimmed

private:
    QChar ADSOY_KeyPress(QChar key) const;
    void CommandONAME_Click();
    void apply_rights();
    void enable_plan(bool enabled);
    void load_student();
    void take_snapshots();
    void reset_totals();

    KurvoYeni& form_;
    SessionContext& session_;
    std::function<void()> taksit_listele_;
};
