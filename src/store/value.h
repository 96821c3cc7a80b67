// A value of a field: a text, a number or Null.
#pragma once

#include <QString>

#include <concepts>
#include <cstdint>
#include <string_view>
#include <variant>

namespace store {

class Value {
public:
    Value() = default;  // Null
    Value(const QString& text) : value_(text) {}
    Value(QString&& text) : value_(std::move(text)) {}
    Value(const char16_t* text) : value_(QString::fromUtf16(text)) {}
    Value(const char* utf8) : value_(QString::fromUtf8(utf8)) {}
    Value(double number) : value_(number) {}
    template <std::integral Whole>
    Value(Whole number) : value_(static_cast<std::int64_t>(number)) {}
    Value(bool) = delete;

    bool is_null() const { return std::holds_alternative<std::monostate>(value_); }
    bool is_text() const { return std::holds_alternative<QString>(value_); }
    bool is_number() const { return !is_null() && !is_text(); }

    // For display: Null is an empty text, a number its plain decimal text with a point.
    QString text() const {
        const QString* text = std::get_if<QString>(&value_);
        return text != nullptr ? *text : text_of_number();
    }
    // A number, or the numeric prefix of a text; Null is 0.
    double number() const;
    std::int64_t whole_number() const;  // number(), toward zero; the nearest end where 64 bits are too few
    // This value where one must be; throws std::runtime_error on Null.
    const Value& required() const;

    bool operator==(const Value& other) const = default;

    const std::variant<std::monostate, std::int64_t, double, QString>& raw() const { return value_; }

private:
    QString text_of_number() const;

    std::variant<std::monostate, std::int64_t, double, QString> value_;
};

}  // namespace store
