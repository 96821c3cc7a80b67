// The amounts and the due dates of an automatic plan, and what a discount leaves of a fee.
#pragma once

#include "platform/money.h"

#include <QDate>
#include <QStringList>

#include <cstdint>

// What a discount of `percent` in a hundred leaves of a whole fee, exact but for what lies below a ten-thousandth,
// which is rounded down. A percentage beyond -100 to 200 counts as that end.
Money after_discount(Money fee, Money percent);

// A total in `count` instalments: all are `each` but the last one.
struct SplitAmounts {
    Money each;
    Money last;
};

// Splits a whole total above 0 in `count` (from 1) whole instalments. With a `step` above 0 they are rounded to its
// nearest multiple, half a step down. The last one takes the difference, so that the sum is the total.
SplitAmounts split_amount(Money total, std::int64_t count, Money step);

// `count` due dates (YYYYMMDD) a month apart. Where the month is too short for the first date's day they fall on its
// last one, in February always on the 28th; only a first date stays on the 29th. None lies beyond the year 9999.
QStringList monthly_dates(const QDate& first, std::int64_t count);
