#include "study/student_sessions.h"

#include "platform/numbers.h"

std::vector<StudentSession> read_sessions(store::Database& term, const QString& number_box) {
    std::vector<StudentSession> sessions;
    store::Recordset etud = term.OpenRecordset("Etud");
    etud.Index("OTSX");
    store::scan_prefix(etud, {numbers::val(number_box)}, [&] {
        sessions.push_back({etud["TARIH"].text(), etud["SAAT"].text(), etud["BITSAAT"].text(), etud["KOD"].value(),
                            etud["SICIL"].value(), etud["GIRDI"].text(), etud["KONU"].text()});
    });
    return sessions;
}
