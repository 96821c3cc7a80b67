#include "platform/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace numbers {

namespace {

// What stands in a text, before any rounding.
struct Digits {
    bool negative = false;
    std::string whole;
    std::string decimals;

    bool empty() const { return whole.empty() && decimals.empty(); }
};

bool is_digit(QChar letter) {
    return letter >= u'0' && letter <= u'9';
}

// Takes a sign off the front.
bool take_sign(QStringView& text) {
    if (text.isEmpty() || (text[0] != u'-' && text[0] != u'+')) return false;
    const bool negative = text[0] == u'-';
    text = text.mid(1);
    return negative;
}

Digits parse_prefix(QStringView text) {
    while (!text.isEmpty() && text[0].isSpace()) text = text.mid(1);
    Digits digits;
    digits.negative = take_sign(text);
    bool behind_point = false;
    for (const QChar letter : text) {
        if (is_digit(letter))
            (behind_point ? digits.decimals : digits.whole) += letter.toLatin1();
        else if (letter == u'.' && !behind_point)
            behind_point = true;
        else
            break;
    }
    return digits;
}

std::optional<Digits> parse_turkish(QStringView text) {
    text = text.trimmed();
    Digits digits;
    digits.negative = take_sign(text);
    bool behind_comma = false;
    for (const QChar letter : text) {
        if (is_digit(letter))
            (behind_comma ? digits.decimals : digits.whole) += letter.toLatin1();
        else if (letter == u',' && !behind_comma)
            behind_comma = true;
        else if (letter != u'.')
            return std::nullopt;
    }
    if (digits.empty()) return std::nullopt;
    return digits;
}

// Rounded once, to `places` decimals (0 to 4), halves away from zero; what is too large becomes Money::limit.
Money round_to(const Digits& digits, std::size_t places) {
    std::int64_t parts = 0;
    for (const char digit : digits.whole) parts = std::min(parts * 10 + (digit - '0'), Money::limit);
    if (parts == Money::limit) return Money::units(digits.negative ? -parts : parts);

    const auto decimal = [&](std::size_t i) { return i < digits.decimals.size() ? digits.decimals[i] - '0' : 0; };
    for (std::size_t i = 0; i < places; ++i) parts = parts * 10 + decimal(i);
    if (decimal(places) >= 5) ++parts;
    for (std::size_t i = places; i < 4; ++i) parts *= 10;
    return Money::of_parts(digits.negative ? -parts : parts);
}

QString grouped(std::int64_t whole) {
    QString text = QString::number(whole);
    for (qsizetype at = text.size() - 3; at > 0; at -= 3) text.insert(at, u'.');
    return text;
}

}  // namespace

double val(QStringView text) {
    const Digits digits = parse_prefix(text);
    if (digits.empty()) return 0;
    const std::string form = digits.whole + '.' + digits.decimals;
    double number = 0;
    const auto result = std::from_chars(form.data(), form.data() + form.size(), number, std::chars_format::fixed);
    // Only a row of more than 300 digits is out of range, or decimals too small to count.
    if (result.ec == std::errc::result_out_of_range)
        number = digits.whole.find_first_not_of('0') == std::string::npos ? 0 : std::numeric_limits<double>::max();
    return digits.negative && number != 0 ? -number : number;
}

Money money(QStringView text) {
    return round_to(parse_prefix(text), 4);
}

Money whole(QStringView text) {
    const std::optional<Digits> turkish = parse_turkish(text);
    return round_to(turkish ? *turkish : parse_prefix(text), 0);
}

Money larger_of_readers(QStringView text) {
    return std::max(money(text), whole(text));
}

QString picture(Money amount) {
    const std::int64_t parts = std::abs(amount.parts());
    const std::int64_t hundredths = (parts + 50) / 100;
    if (hundredths == 0) return {};
    QString text = amount.parts() < 0 ? QStringLiteral("-") : QString();
    if (hundredths >= 100) text += grouped(hundredths / 100);
    if (const std::int64_t decimals = hundredths % 100; decimals % 10 != 0)
        text += u',' + QString::number(decimals).rightJustified(2, u'0');
    else if (decimals != 0)
        text += u',' + QString::number(decimals / 10);
    return text;
}

QString picture(QStringView text) {
    const std::optional<Digits> turkish = parse_turkish(text);
    return picture(round_to(turkish ? *turkish : parse_prefix(text), 4));
}

QString whole_picture(Money amount) {
    const std::int64_t whole = amount.rounded();
    return whole == 0 ? QString() : QString::number(whole);
}

QString plain(double number) {
    if (number == 0 || !std::isfinite(number)) return QStringLiteral("0");
    constexpr double whole_below = 1e15;
    if (const auto whole = static_cast<std::int64_t>(std::abs(number) < whole_below ? number : 0);
        static_cast<double>(whole) == number)
        return QString::number(whole);
    char text[400];
    const auto result = std::to_chars(std::begin(text), std::end(text), number, std::chars_format::fixed);
    return QString::fromLatin1(text, result.ptr - text);
}

QString plain(Money amount) {
    const std::int64_t parts = std::abs(amount.parts());
    QString text = amount.parts() < 0 ? QStringLiteral("-") : QString();
    text += QString::number(parts / Money::scale);
    if (parts % Money::scale == 0) return text;
    text += u'.' + QString::number(parts % Money::scale).rightJustified(4, u'0');
    while (text.endsWith(u'0')) text.chop(1);
    return text;
}

}  // namespace numbers
