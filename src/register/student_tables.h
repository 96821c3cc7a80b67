// The tables of a term whose rows hang on a student's number.
#pragma once

#include "store/record.h"

struct StudentTable {
    const char* name;
    const char* index;  // begins with the number

    store::Recordset open(store::Database& term) const {
        store::Recordset rows = term.OpenRecordset(name);
        rows.Index(index);
        return rows;
    }
};

namespace student_tables {

inline constexpr StudentTable Odeme{"Odeme", "OVX"}, Tahsilat{"Tahsilat", "OVTX"};
inline constexpr StudentTable Devam{"Devam", "OTDX"}, Dmazeret{"Dmazeret", "OTX"};
inline constexpr StudentTable Etud{"Etud", "OTSX"}, EtudDevam{"EtudDevam", "OTDX"}, Emazeret{"Emazeret", "OTX"};

}  // namespace student_tables
