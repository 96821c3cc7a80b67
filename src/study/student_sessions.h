// The booked study sessions of one student.
#pragma once

#include "store/record.h"

#include <vector>

struct StudentSession {
    QString tarih, saat, bitsaat;  // YYYYMMDD, hhmm, hhmm
    store::Value kod, sicil;
    QString girdi;  // "X": attended; one blank: not attended
    QString konu;
};

// In order of date and start. `number_box` is read by the number parser.
std::vector<StudentSession> read_sessions(store::Database& term, const QString& number_box);
