// A student of another term is taken over onto the record form, under a number of the current term.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QObject>

class RecordForm;

// A copy in every case: the other term's file is only read, and nothing is written before the clerk saves the form.
// Its look-ups leave studentTable on the student of the form.
class Transfer : public QObject {
    Q_OBJECT

public:
    Transfer(KurvoYeni& form, SessionContext& session, RecordForm& record);

private:
    void CommandAL_Click();
    void FONO_LostFocus();
    void YONO_LostFocus();
    void CommandAKTAR_Click();
    void CommandTVAZGEC_Click();

    bool panel_is_left() const;
    bool is_taken(std::int64_t number);
    void clear_form();
    void take_over(std::int64_t number);
    void show_source_row(store::Recordset& source);

    KurvoYeni& form_;
    SessionContext& session_;
    RecordForm& record_;
};
