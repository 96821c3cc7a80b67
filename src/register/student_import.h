// New students from a workbook, on the panel "Dosyadan Taşı".
#pragma once

#include "forms/kurvo.h"
#include "register/imported_student.h"
#include "session/context.h"

#include <QObject>

#include <optional>
#include <vector>

class StudentList;

// It only adds students, row by row as they stand in the workbook; what was written before a failure stays.
class StudentImport : public QObject {
    Q_OBJECT

public:
    StudentImport(Kurvo& kurvo, SessionContext& session, StudentList& list);

private:
    void CommandDOSYADAN_Click();
    void CommandONAME_Click();
    void CommandAKTAR_Click();

    std::optional<Workbook> open_workbook();
    ImportColumns columns() const;
    void run(const Workbook& book);
    void add_rows(const Workbook& book);
    bool may_add(const ImportedStudent& student);
    void add_student(const ImportedStudent& student);
    void add_class(store::Recordset& classes, const QString& class_group);
    void keep_what_was_written(store::WriteScope& scope);
    void tell(const QString& line);

    Kurvo& kurvo_;
    SessionContext& session_;
    StudentList& list_;
    QString today_;                // of the import: asking for it is dear
    int read_ = 0;                 // rows, with the one that ended the import
    std::vector<double> written_;  // the numbers of the new students
};
