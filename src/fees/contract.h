// The student's contract: the clauses of data\Sozlesme.txt, which are edited here, and its printing.
#pragma once

#include "forms/kurvo_yeni.h"
#include "session/context.h"

#include <QDate>
#include <QObject>

// For one opening of the form; the contract bears that day's date. A file or a printer that refuses is told, and
// nothing is printed then.
class Contract : public QObject {
    Q_OBJECT

public:
    Contract(KurvoYeni& form, SessionContext& session);

    void CommandYAZ_Click();       // prints; nothing while ONO is not above 0
    void CommandSOZLESME_Click();  // shows the clauses of the file, which must be there
    void CommandSave_Click();
    void CommandGeridon_Click();

private:
    QString clauses_file() const { return session_.data_file(QStringLiteral("Sozlesme.txt")); }
    void print_contract();

    KurvoYeni& form_;
    SessionContext& session_;
    const QDate opened_;
};
