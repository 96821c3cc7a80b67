#include "platform/rtf_style.h"

#include <algorithm>

bool rtf::change_style(Style& style, Action action, const Word& word) {
    switch (action) {
        case Action::bold:
            style.bold = word.on();
            return true;
        case Action::italic:
            style.italic = word.on();
            return true;
        case Action::underline:
            style.underline = word.on();
            return true;
        case Action::underline_end:
            style.underline = false;
            return true;
        case Action::strike:
            style.strike = word.on();
            return true;
        case Action::superscript:
            style.script = word.on() ? Script::above : Script::normal;
            return true;
        case Action::subscript:
            style.script = word.on() ? Script::below : Script::normal;
            return true;
        case Action::script_end:
            style.script = Script::normal;
            return true;
        case Action::font_size:
            style.half_points = std::clamp(word.number, 0, 3276);
            return true;
        case Action::color:
            style.color = std::max(word.number, 0);
            return true;
        case Action::background:
            style.background = std::max(word.number, 0);
            return true;
        default:
            return false;
    }
}
