// The SELECT statements that the SQLite engine reads rows with.
#pragma once

#include "store/table_info.h"

#include <cstdint>
#include <string>

namespace store {

// The condition of a read: the leading `keys` fields compared as `form` says; Null keys are marked in `nulls`.
struct ReadShape {
    enum class Form : std::uint8_t {
        all,                 // every row
        descending,          // every row, last first
        equal,               // keys equal
        greater,             // the last key greater, those before it equal
        behind_null,         // the last key is not Null, those before it equal
        equal_later_row,     // keys equal, entered later than a row
        tuple,               // keys greater, compared as one; none is Null
        tuple_or_later_row,  // the same, or keys equal and entered later than a row
        row,                 // one row by its id
    };
    Form form;
    int index = 0;
    int keys = 0;
    std::uint16_t nulls = 0;

    // Different for each statement of one connection; the projection belongs to one table only.
    std::uint64_t code(const Projection& columns) const;
};

// Columns: row id, then those of the projection. Parameters: the keys that are not Null, then the row id if any.
std::string read_sql(const TableInfo& table, const ReadShape& shape, const Projection& columns);

}  // namespace store
