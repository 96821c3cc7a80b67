// An amount as a scaled whole number, so that no binary fraction can change a result.
#pragma once

#include <QtGlobal>  // ahead of <compare>, at which moc stops without it

#include <compare>
#include <cstdint>

// Holds ten-thousandths of a currency unit, about +-9e14 units.
class Money {
public:
    constexpr Money() = default;
    static constexpr Money units(std::int64_t whole) { return Money(whole * scale); }
    static constexpr Money of_parts(std::int64_t ten_thousandths) { return Money(ten_thousandths); }
    // Rounded to the nearest ten-thousandth; 0 for what is no number, and never beyond +-limit units.
    static Money from_number(double number);

    double number() const;  // for a field of a table
    constexpr std::int64_t parts() const { return parts_; }
    std::int64_t rounded() const;  // nearest whole unit, halves away from zero
    std::int64_t floor() const;    // whole part, rounded down
    constexpr std::int64_t truncated() const { return parts_ / scale; }

    constexpr Money operator-() const { return Money(-parts_); }
    constexpr Money operator+(Money other) const { return Money(parts_ + other.parts_); }
    constexpr Money operator-(Money other) const { return Money(parts_ - other.parts_); }
    constexpr Money& operator+=(Money other) { return *this = *this + other; }
    constexpr Money& operator-=(Money other) { return *this = *this - other; }
    constexpr auto operator<=>(const Money&) const = default;

    static constexpr std::int64_t scale = 10000;
    // Units. Readers of texts and numbers stop here, so that sums of what they give do not overflow.
    static constexpr std::int64_t limit = 100'000'000'000'000;

private:
    constexpr explicit Money(std::int64_t parts) : parts_(parts) {}
    std::int64_t parts_ = 0;
};
