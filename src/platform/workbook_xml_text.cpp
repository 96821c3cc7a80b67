#include "platform/workbook_xml_text.h"

#include "platform/workbook_sheet.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace workbook {

namespace {

// The letter of "#351" or "#x15F".
char32_t numbered_letter(std::string_view reference) {
    const bool hexadecimal = reference.starts_with("#x");
    reference.remove_prefix(hexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const auto* end = reference.data() + reference.size();
    const auto [stop, error] = std::from_chars(reference.data(), end, code, hexadecimal ? 16 : 10);
    const bool control = code < U' ' && code != U'\t' && code != U'\n' && code != U'\r';
    if (error != std::errc() || stop != end || control || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        throw damaged();
    return code;
}

// "&amp;" or the like at the beginning of `rest`.
void append_reference(std::string& text, std::string_view& rest) {
    constexpr std::size_t longest = 12;
    constexpr std::pair<std::string_view, char> named[] = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    const std::size_t end = rest.substr(0, longest).find(';');
    if (end == std::string_view::npos) throw damaged();
    const std::string_view reference = rest.substr(1, end - 1);
    rest.remove_prefix(end + 1);
    if (reference.starts_with('#')) {
        const char32_t letter = numbered_letter(reference);
        text += QString::fromUcs4(&letter, 1).toStdString();
        return;
    }
    const auto* found = std::ranges::find(named, reference, &std::pair<std::string_view, char>::first);
    if (found == std::end(named)) throw damaged();
    text += found->second;
}

template <typename Number>
std::optional<Number> number(std::string_view value) {
    pass_blanks(value);
    while (!value.empty() && is_blank(value.back())) value.remove_suffix(1);
    Number result = 0;
    const auto* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, result);
    return error == std::errc() && stop == end ? std::optional(result) : std::nullopt;
}

}  // namespace

bool pass_blanks(std::string_view& rest) {
    const std::size_t before = rest.size();
    while (!rest.empty() && is_blank(rest.front())) rest.remove_prefix(1);
    return rest.size() < before;
}

void append_letters(std::string& text, std::string_view written, bool raw) {
    const auto stands_for_itself = [raw](char c) {
        return static_cast<unsigned char>(c) >= ' ' ? raw || c != '&' : c == '\t' || c == '\n';
    };
    for (;;) {
        const auto special = std::ranges::find_if_not(written, stands_for_itself);
        text.append(written.begin(), special);
        written = {special, written.end()};
        if (written.empty()) return;
        if (written.front() == '&') {
            append_reference(text, written);
        } else if (written.front() == '\r') {
            written.remove_prefix(written.starts_with("\r\n") ? 2 : 1);
            text += '\n';
        } else {
            throw damaged();
        }
    }
}

QString text_of_utf8(std::string_view utf8) {
    const QByteArrayView bytes(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (!bytes.isValidUtf8()) throw damaged();
    return QString::fromUtf8(bytes);
}

std::optional<std::uint64_t> whole_number(std::string_view value) {
    return number<std::uint64_t>(value);
}

std::optional<double> decimal_number(std::string_view value) {
    const auto decimal = number<double>(value);
    return decimal && std::isfinite(*decimal) ? decimal : std::nullopt;
}

}  // namespace workbook
