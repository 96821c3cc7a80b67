#include "store/conversion.h"

#include "platform/numbers.h"
#include "platform/turkish.h"
#include "store/messages.h"

#include <cmath>
#include <optional>

namespace store {

namespace {

// Blanks around, a sign, digits, a point and decimals; nothing else.
bool is_numeric(QStringView text) {
    if (text.startsWith(u'-') || text.startsWith(u'+')) text = text.mid(1);
    int digits = 0, points = 0;
    for (const QChar letter : text) {
        if (letter >= u'0' && letter <= u'9') {
            ++digits;
        } else if (letter == u'.' && points == 0) {
            ++points;
        } else {
            return false;
        }
    }
    return digits > 0;
}

std::optional<std::int64_t> rounded(double number) {
    constexpr double limit = 9223372036854775808.0;
    const double whole = std::nearbyint(number);
    if (!(whole >= -limit && whole < limit)) return std::nullopt;
    return static_cast<std::int64_t>(whole);
}

std::optional<std::int64_t> whole_of(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value.raw())) return *whole;
    if (value.is_text()) {
        bool fits = false;
        const qlonglong whole = value.text().trimmed().toLongLong(&fits);
        if (fits) return whole;
    }
    return rounded(value.number());
}

}  // namespace

Value stored_value(const Value& value, const TableDef& table, const FieldDef& field) {
    if (value.is_null()) return value;
    if (is_text(field.type)) return value.is_text() ? value : Value(value.text());
    if (value.is_text() && !is_numeric(QStringView(value.text()).trimmed()))
        throw messages::field_error(u"“%1” alanına sayı olmayan bir metin yazılamaz: “%3” (tablo %2)", table, field,
                                    value.text());
    if (!is_whole(field.type)) {
        const double number = value.is_text() ? numbers::val(value.text().trimmed()) : value.number();
        if (!std::isfinite(number))
            throw messages::field_error(u"“%1” alanına sığmayan sayı: %3 (tablo %2)", table, field, value.text());
        return number;
    }
    const auto whole = whole_of(value);
    if (!whole) throw messages::field_error(u"“%1” alanına sığmayan sayı: %3 (tablo %2)", table, field, value.text());
    return *whole;
}

Value key_value(const Value& value, FieldType type) {
    if (value.is_null()) return value;
    if (is_text(type)) return value.is_text() ? value : Value(value.text());
    return value.is_text() ? Value(value.number()) : value;
}

int compare_keys(const Value& left, const Value& right) {
    if (left.is_null() || right.is_null())
        return static_cast<int>(!left.is_null()) - static_cast<int>(!right.is_null());
    if (left.is_text() != right.is_text()) return left.is_text() ? 1 : -1;
    if (const auto* text = std::get_if<QString>(&left.raw()))
        return turkish::compare(*text, std::get<QString>(right.raw()));
    const double a = left.number(), b = right.number();
    return a < b ? -1 : static_cast<int>(a > b);
}

}  // namespace store
