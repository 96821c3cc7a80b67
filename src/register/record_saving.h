// Saving the student on the record form.
#pragma once

#include "register/main_screen.h"
#include "register/record_form.h"

// How the student on the record form comes into the school's remote directory and out of it. Both are called only where
// the school has a key there.
struct Publishing {
    std::function<void(const KurvoYeni&)> publish, remove;
};

class RecordSaving : public QObject {
    Q_OBJECT

public:
    // `publish` is called where a published value has changed.
    RecordSaving(KurvoYeni& form, SessionContext& session, RecordForm& record, MainScreen screen,
                 std::function<void(const KurvoYeni&)> publish);

    // All checks, then the row, list and card, and an empty form; or a form that stays as it is, but for telephones
    // that have lost their blanks.
    void CommandKAYDET_Click();

    // Writes the row of the number in ONO without any check, adding it where kayitVar is false, and keeps the learned
    // lists. A first departure asks what becomes of the open instalments. Empty boxes show a blank afterwards.
    void ogrenci_yaz();
    // The same for a student who gets instalments before being saved: the row is found and known from then on.
    void store_student();

private:
    bool has_number();
    bool accept_fee_difference() const;
    bool normalise_telephones();
    void write_row(const QString& school, const QString& special_code);
    void write_exceptions(store::Recordset& row, const QString& school, const QString& special_code) const;
    void ask_about_open_instalments();
    void cancel_open_instalments();

    KurvoYeni& form_;
    SessionContext& session_;
    RecordForm& record_;
    MainScreen screen_;
    std::function<void(const KurvoYeni&)> publish_;
};
