#include "platform/rtf_reader.h"

#include <algorithm>

namespace rtf {

namespace {

constexpr std::size_t longest_word = 32;
constexpr int largest_number = 100'000'000;

bool is_latin(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool is_digit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

int hex_value(char16_t unit) {
    if (is_digit(unit)) return unit - u'0';
    if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
    return -1;
}

// Letters that stand for themselves in a run. The others are codes of the input or mean something to QTextDocument.
bool is_ordinary(char16_t unit) {
    if (unit < 0x20 || unit == u'\\' || unit == u'{' || unit == u'}') return false;
    return unit < 0x2029 || (unit != 0x2029 && unit != 0xFDD0 && unit != 0xFDD1 && unit != 0xFFFC);
}

}  // namespace

Reader::Reader(QStringView input, Sink& sink) : input_(input), sink_(sink), letters_(tables_.letters_of(-1)) {}

void Reader::read() {
    while (at_ < input_.size() && !ended_) {
        const char16_t unit = input_[at_].unicode();
        if (unit == u'\\') {
            ++at_;
            control();
        } else if (unit == u'{') {
            ++at_;
            open_group();
        } else if (unit == u'}') {
            ++at_;
            close_group();
        } else if (skipped_depth_ > 0) {
            ++at_;
        } else {
            literal_run();
        }
    }
    flush();
    sink_.document_end(now_.alignment);
}

void Reader::open_group() {
    fallback_left_ = 0;
    if (skipped_depth_ > 0)
        ++skipped_depth_;
    else
        groups_.push_back(now_);
}

void Reader::close_group() {
    fallback_left_ = 0;
    if (skipped_depth_ > 1) {
        --skipped_depth_;
        return;
    }
    skipped_depth_ = 0;
    // The outermost group is the document; its last paragraph keeps the alignment that it had.
    ended_ = groups_.size() <= 1;
    if (ended_) return;
    now_ = groups_.back();
    groups_.pop_back();
    select_letters();
}

// The outermost group holds the text itself and is never skipped.
void Reader::skip_group() {
    if (groups_.size() > 1) skipped_depth_ = 1;
}

// A destination that may be left out, unless it is a shape: that one holds the text of a text box.
void Reader::skip_optional_group() {
    if (!input_.mid(at_).startsWith(u"\\shpinst")) skip_group();
}

void Reader::control() {
    if (at_ == input_.size()) return;
    if (is_latin(input_[at_].unicode()))
        control_word();
    else
        control_symbol(input_[at_++].unicode());
}

void Reader::control_symbol(char16_t symbol) {
    if (skipped_depth_ > 0) return;
    switch (symbol) {
        case u'\'':
            return hex_letter();
        case u'*':
            return skip_optional_group();
        case u'~':
            return letter(QChar::Nbsp);
        case u'-':
            return letter(QChar::SoftHyphen);
        case u'_':
            return letter(QChar(0x2011));
        case u'\t':
            return letter(u'\t');
        case u'\r':
            if (at_ < input_.size() && input_[at_] == u'\n') ++at_;
            return end_paragraph();
        case u'\n':
            return end_paragraph();
        case u'\\':
        case u'{':
        case u'}':
            return letter(QChar(symbol));
        default:
            return;
    }
}

void Reader::control_word() {
    char name[longest_word];
    std::size_t length = 0;
    for (; at_ < input_.size() && is_latin(input_[at_].unicode()); ++at_)
        if (length < longest_word) name[length++] = input_[at_].toLatin1();

    const bool negative = at_ + 1 < input_.size() && input_[at_] == u'-' && is_digit(input_[at_ + 1].unicode());
    if (negative) ++at_;
    Word word{std::string_view(name, length)};
    for (; at_ < input_.size() && is_digit(input_[at_].unicode()); ++at_) {
        word.has_number = true;
        word.number = std::min(word.number * 10 + (input_[at_].unicode() - u'0'), largest_number);
    }
    if (negative) word.number = -word.number;
    if (at_ < input_.size() && input_[at_] == u' ') ++at_;
    apply(word);
}

void Reader::apply(const Word& word) {
    const KnownWord& known = find_word(word.name);
    if (known.action == Action::binary) return skip_binary(word.number);
    if (skipped_depth_ > 0) return;
    if (known.action == Action::letter) return letter(QChar(static_cast<char16_t>(known.argument)));
    fallback_left_ = 0;
    if (apply_to_run(known.action, word)) return;
    switch (known.action) {
        case Action::paragraph:
            return end_paragraph();
        case Action::unicode:
            return unicode_letter(word.number);
        case Action::fallback_length:
            now_.fallback_length = std::clamp(word.number, 0, 255);
            return;
        case Action::plain_paragraph:
            now_.alignment = Alignment::left;
            return;
        case Action::align:
            now_.alignment = static_cast<Alignment>(known.argument);
            return;
        case Action::skipped_destination:
            return skip_group();
        case Action::document_code_page:
            tables_.set_code_page(word.number);
            return select_letters();
        case Action::fixed_code_page:
            tables_.set_code_page(known.argument);
            return select_letters();
        default:
            return apply_to_tables(known.action, word);
    }
}

// False when the word is none of a run's looks.
bool Reader::apply_to_run(Action action, const Word& word) {
    switch (action) {
        case Action::hidden:
            now_.hidden = word.on();
            return true;
        case Action::font:
            select_font(word.number);
            return true;
        case Action::plain_style:
            now_.style = Style{};
            now_.hidden = false;
            select_font(default_font_);
            return true;
        default:
            return change_style(now_.style, action, word);
    }
}

void Reader::apply_to_tables(Action action, const Word& word) {
    switch (action) {
        case Action::default_font:
            default_font_ = word.number;
            return select_font(word.number);
        case Action::font_charset:
            if (now_.destination == Destination::fonts) tables_.set_charset(word.number);
            return;
        case Action::font_table:
            now_.destination = Destination::fonts;
            return;
        case Action::color_table:
            now_.destination = Destination::colors;
            return;
        case Action::red:
        case Action::green:
        case Action::blue:
            return tables_.set_color_part(action, word.number);
        default:
            return;
    }
}

void Reader::select_font(int font) {
    if (now_.destination == Destination::fonts) return tables_.begin_font(font);
    now_.style.font = font;
    select_letters();
}

void Reader::select_letters() {
    letters_ = tables_.letters_of(now_.style.font);
}

void Reader::skip_binary(int size) {
    at_ += std::clamp<qsizetype>(size, 0, input_.size() - at_);
}

void Reader::hex_letter() {
    if (at_ + 2 > input_.size()) return;
    const int high = hex_value(input_[at_].unicode());
    const int low = hex_value(input_[at_ + 1].unicode());
    if (high < 0 || low < 0) return;
    at_ += 2;
    letter(letters_[high * 16 + low]);
}

void Reader::unicode_letter(int number) {
    const auto code = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    if (code <= 0xFFFF)
        letter(QChar(static_cast<char16_t>(code)));
    else if (code <= QChar::LastValidCodePoint)
        for (const char16_t unit : QChar::fromUcs4(code)) letter(QChar(unit));
    else
        letter(QChar::ReplacementCharacter);
    fallback_left_ = now_.fallback_length;
}

void Reader::literal_run() {
    const qsizetype begin = at_;
    if (fallback_left_ == 0 && now_.destination == Destination::body)
        while (at_ < input_.size() && is_ordinary(input_[at_].unicode())) ++at_;
    if (at_ > begin) {
        if (!now_.hidden) append(input_.mid(begin, at_ - begin));
    } else if (input_[at_] == QChar::ParagraphSeparator) {
        ++at_;
        end_paragraph();
    } else {
        letter(input_[at_++]);
    }
}

void Reader::letter(QChar letter) {
    const char16_t unit = letter.unicode();
    if (unit != u'\t' && unit < 0x20) return;  // the input's own line ends
    if (fallback_left_ > 0) {
        --fallback_left_;
        return;
    }
    if (now_.destination == Destination::fonts) return tables_.add_font_letter(letter);
    if (now_.destination == Destination::colors) return tables_.add_color_letter(letter);
    const bool own_sign = unit == u'\t' || unit == u'\\' || unit == u'{' || unit == u'}';
    if (!now_.hidden && (own_sign || is_ordinary(unit))) append(QStringView(&letter, 1));
}

void Reader::append(QStringView letters) {
    if (now_.style != run_style_) flush();
    run_style_ = now_.style;
    run_ += letters;
}

void Reader::end_paragraph() {
    if (now_.destination != Destination::body || now_.hidden) return;
    flush();
    sink_.paragraph_end(now_.alignment);
}

void Reader::flush() {
    if (!run_.isEmpty()) sink_.run(run_, run_style_, tables_);
    run_.resize(0);
}

}  // namespace rtf
