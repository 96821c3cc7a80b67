// A student with as many rows in the tables as a measure names.
#pragma once

namespace bench {

struct RowCounts {
    int instalments, payments, absences, sessions;
};

// Puts these rows in place of what the student has; each payment gets its row in the cash book.
void give_rows(double student, const RowCounts& counts);

}  // namespace bench
