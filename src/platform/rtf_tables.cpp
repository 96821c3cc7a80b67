#include "platform/rtf_tables.h"

#include "platform/rtf_code_pages.h"

#include <algorithm>

namespace rtf {

namespace {

constexpr std::size_t most_fonts = 500;  // more would only come from broken input, and slow the document down

int shift_of(Action part) {
    return part == Action::red ? 16 : part == Action::green ? 8 : 0;
}

}  // namespace

QString Tables::font_name(int font) const {
    const auto found = fonts_.find(font);
    return found == fonts_.end() ? QString() : found->second.name;
}

std::optional<QRgb> Tables::color(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= colors_.size()) return std::nullopt;
    return colors_[static_cast<std::size_t>(index)];
}

const QChar* Tables::letters_of(int font) const {
    const auto found = fonts_.find(font);
    const int charset = found == fonts_.end() ? 0 : found->second.charset;
    return letters_of_code_page(code_page_of_charset(charset, code_page_));
}

void Tables::begin_font(int font) {
    const bool taken = fonts_.size() < most_fonts || fonts_.contains(font);
    font_ = taken ? font : -1;
    if (taken) fonts_[font] = Font{};
}

void Tables::set_charset(int charset) {
    if (font_ >= 0) fonts_[font_].charset = charset;
}

void Tables::add_font_letter(QChar letter) {
    if (letter == u';')
        font_ = -1;
    else if (font_ >= 0)
        fonts_[font_].name += letter;
}

void Tables::set_color_part(Action part, int value) {
    const int shift = shift_of(part);
    const QRgb bits = static_cast<QRgb>(std::clamp(value, 0, 255)) << shift;
    color_ = (color_.value_or(qRgb(0, 0, 0)) & ~(QRgb{0xFF} << shift)) | bits;
}

void Tables::add_color_letter(QChar letter) {
    if (letter != u';') return;
    colors_.push_back(color_);
    color_.reset();
}

}  // namespace rtf
