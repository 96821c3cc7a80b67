// The control words that the reader of RTF acts on.
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

struct KnownWord {
    std::string_view name;
    Action action = Action::unknown;
    int argument = 0;
};

const KnownWord& find_word(std::string_view name);

}  // namespace rtf
