#include "fees/automatic_plan.h"

#include "platform/clock.h"

#include <algorithm>

namespace {

constexpr int last_year = 9999;  // a due date has four digits for it

int last_day_of(int month) {
    if (month == 2) return 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

}  // namespace

Money after_discount(Money fee, Money percent) {
    constexpr std::int64_t hundred = 100 * Money::scale;
    const std::int64_t kept = hundred - std::clamp(percent.parts(), -hundred, 2 * hundred);
    // fee / 100 * kept in two steps: in one, a large fee would not fit.
    const std::int64_t hundreds = fee.truncated() / 100;
    const std::int64_t units = fee.truncated() % 100 * kept;
    const std::int64_t below = units % 100 < 0 ? 1 : 0;
    return Money::of_parts(hundreds * kept + units / 100 - below);
}

SplitAmounts split_amount(Money total, std::int64_t count, Money step) {
    std::int64_t each = total.truncated() / count * Money::scale;
    if (step > Money()) {
        const std::int64_t rest = each % step.parts();
        each -= rest;
        if (2 * rest > step.parts()) each += step.parts();
    }
    return {Money::of_parts(each), Money::of_parts(total.parts() - each * (count - 1))};
}

QStringList monthly_dates(const QDate& first, std::int64_t count) {
    QStringList keys;
    int year = first.year();
    int month = first.month();
    for (std::int64_t i = 0; i < count && year <= last_year; ++i) {
        const int day = i == 0 ? first.day() : std::min(first.day(), last_day_of(month));
        keys << dates::key(QDate(year, month, day));
        if (++month > 12) {
            month = 1;
            ++year;
        }
    }
    return keys;
}
