#include "store/value.h"

#include "platform/numbers.h"

#include <limits>
#include <stdexcept>

namespace store {

QString Value::text_of_number() const {
    if (const auto* whole = std::get_if<std::int64_t>(&value_)) return QString::number(*whole);
    if (const auto* number = std::get_if<double>(&value_)) return numbers::plain(*number);
    return {};
}

double Value::number() const {
    if (const auto* number = std::get_if<double>(&value_)) return *number;
    if (const auto* whole = std::get_if<std::int64_t>(&value_)) return static_cast<double>(*whole);
    if (const auto* text = std::get_if<QString>(&value_)) return numbers::val(*text);
    return 0;
}

std::int64_t Value::whole_number() const {
    if (const auto* whole = std::get_if<std::int64_t>(&value_)) return *whole;
    constexpr double limit = 9223372036854775808.0;
    const double exact = number();
    if (exact >= limit) return std::numeric_limits<std::int64_t>::max();
    if (exact < -limit) return std::numeric_limits<std::int64_t>::min();
    return exact == exact ? static_cast<std::int64_t>(exact) : 0;
}

const Value& Value::required() const {
    if (is_null()) throw std::runtime_error("Boş (Null) bir değer okunamaz.");
    return *this;
}

}  // namespace store
