// How a run of RTF text looks, and the control words that change it.
#pragma once

#include "platform/rtf_words.h"

#include <cstdint>

namespace rtf {

enum class Script : std::uint8_t { normal, above, below };

// Unset (font -1, size 0, colour 0) means as the document has it.
struct Style {
    int font = -1;
    int half_points = 0;
    int color = 0;
    int background = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    Script script = Script::normal;
    bool operator==(const Style&) const = default;
};

// False when the word is none that changes a style by itself; a font is the reader's to choose.
bool change_style(Style& style, Action action, const Word& word);

}  // namespace rtf
