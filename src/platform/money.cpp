#include "platform/money.h"

#include <cmath>

Money Money::from_number(double number) {
    if (std::isnan(number)) return {};
    if (number >= static_cast<double>(limit)) return units(limit);
    if (number <= -static_cast<double>(limit)) return units(-limit);
    return Money(std::llround(number * static_cast<double>(scale)));
}

double Money::number() const {
    return static_cast<double>(parts_) / static_cast<double>(scale);
}

std::int64_t Money::rounded() const {
    const std::int64_t half = parts_ < 0 ? -scale / 2 : scale / 2;
    return (parts_ + half) / scale;
}

std::int64_t Money::floor() const {
    const std::int64_t whole = parts_ / scale;
    return parts_ % scale < 0 ? whole - 1 : whole;
}
