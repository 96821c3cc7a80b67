// The control words of RTF, and what the reader does at those that it knows.
#pragma once

#include <string_view>

namespace rtf {

enum class Action : unsigned char {
    unknown,
    bold,
    italic,
    underline,
    underline_end,
    strike,
    superscript,
    subscript,
    script_end,
    hidden,
    font_size,
    font,
    color,
    background,
    plain_style,
    plain_paragraph,
    align,   // argument: an Alignment
    letter,  // argument: its code unit
    paragraph,
    unicode,
    fallback_length,
    binary,
    document_code_page,
    fixed_code_page,  // argument: the code page
    default_font,
    font_charset,
    red,
    green,
    blue,
    font_table,
    color_table,
    skipped_destination
};

// A control word as it stands in the input.
struct Word {
    std::string_view name;
    int number = 0;
    bool has_number = false;
    bool on() const { return !has_number || number != 0; }
};

struct KnownWord {
    std::string_view name;
    Action action = Action::unknown;
    int argument = 0;
};

// The word of Action::unknown where it is none of them.
const KnownWord& find_word(std::string_view name);

}  // namespace rtf
