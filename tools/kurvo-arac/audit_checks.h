// The checks of a school's files, as data.
#pragma once

#include "store/record.h"

#include <QString>

#include <functional>
#include <map>
#include <span>

namespace audit {

// The file that is looked at, and the others that its rows refer to.
struct Books {
    store::FileKind kind;
    store::Database& file;
    store::Database* reference;                 // nullptr where it cannot be read
    std::map<QString, store::Database>& terms;  // those that can be read, by their codes
};

// Tells of the row on which the record set stands.
using Tell = std::function<void(store::Recordset& row, const QString& words)>;

struct Check {
    bool fault;  // else a notice
    // Does nothing where the file is of a kind that it does not concern.
    void (*run)(Books& books, const Tell& tell);
};

std::span<const Check> value_checks();  // of what stands in a row
std::span<const Check> link_checks();   // of rows against each other

}  // namespace audit
