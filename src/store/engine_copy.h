// Copying and comparing whole files, whichever engines hold them. Failures throw as record.h says.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <string>

namespace store {

class Engine;

// Hears of each table when it is through, with the number of its rows.
using TableDone = std::function<void(const std::string& table, std::int64_t rows)>;

// Copies all rows of all tables of `from`, in the order of entry, into the tables of the same names in `to`, whose
// former rows are erased: one write of `to`, nothing of it where it fails. So rows with equal keys keep their order in
// every index; their row ids are new. Further tables of `to` stay as they are. Whoever needs one moment of `from` sees
// to it that nobody writes there meanwhile.
void copy_rows(Engine& from, Engine& to, const TableDone& done = {});

// Adds the rows of one table to that of the same name in `to`, whose former rows go with `empty_first`, as one write.
void add_rows(Engine& from, Engine& to, const std::string& table, bool empty_first);

// Throws where a table of `from` is missing in `to` or has other fields there, so that rows could not be copied.
void require_room(Engine& from, Engine& to);

// What the first row that differs is, in words for the person who moves a school; empty when tables, fields, indexes
// and rows are the same, in the same order of every index.
QString first_difference(Engine& left, Engine& right);

}  // namespace store
