// The texts and numbers that stand in the UTF-8 of an XML part. Damage throws damaged().
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace workbook {

inline bool is_blank(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}
bool pass_blanks(std::string_view& rest);  // whether there were any

// Adds what stands between two elements, with references resolved, unless it is `raw`, and each end of a line as one
// letter.
void append_letters(std::string& text, std::string_view written, bool raw);

QString text_of_utf8(std::string_view utf8);

// What a value says that may have blanks around it; none where it is no such number.
std::optional<std::uint64_t> whole_number(std::string_view value);
std::optional<double> decimal_number(std::string_view value);

}  // namespace workbook
