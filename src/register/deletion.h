// A student is removed with all rows of the term.
#pragma once

#include "forms/kurvo_yeni.h"
#include "register/main_screen.h"
#include "session/context.h"

#include <QObject>

#include <functional>

class RecordForm;
struct StudentTable;

class Deletion : public QObject {
    Q_OBJECT

public:
    // `remove_remote` takes the student on the form out of the remote directory.
    Deletion(KurvoYeni& form, SessionContext& session, RecordForm& record, MainScreen main,
             std::function<void(const KurvoYeni&)> remove_remote);

private:
    void CommandSIL_Click();
    void remove_photo();
    void remove_rows(const StudentTable& table, std::int64_t student);
    void remove_student();

    KurvoYeni& form_;
    SessionContext& session_;
    RecordForm& record_;
    MainScreen main_;
    std::function<void(const KurvoYeni&)> remove_remote_;
};
