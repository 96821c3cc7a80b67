// Opens the record form over the main form and takes it away again.
#pragma once

#include "register/main_screen.h"
#include "register/record_saving.h"

#include <QPointer>

class Terms;

class RecordWindow : public QObject {
    Q_OBJECT

public:
    RecordWindow(SessionContext& session, Terms& terms, MainScreen screen, Publishing publishing);
    ~RecordWindow() override;

    // Disables the main form and shows a new record form: on the student of LONO where it holds a number.
    void CommandYENI_Click();

    // The form that is open; nullptr where none is.
    KurvoYeni* form() const;

private:
    struct Opening;

    void form_closed();
    void bring_card_up_to_date();

    SessionContext& session_;
    Terms& terms_;
    MainScreen screen_;
    Publishing publishing_;
    QPointer<Opening> opening_;
};
