#include "platform/workbook_xml.h"

#include "platform/workbook_sheet.h"

#include <algorithm>
#include <utility>

namespace workbook {

namespace {

constexpr std::size_t deepest_nesting = 200;
constexpr std::size_t longest_text_in_utf8 = std::size_t{4} * longest_text;
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool may_be_in_name(char c) {
    return !is_blank(c) && c != '=' && c != '/' && c != '<' && c != '>' && c != '&' && c != '"' && c != '\'';
}

std::string_view take_name(std::string_view& rest) {
    const auto end = std::ranges::find_if_not(rest, may_be_in_name);
    const std::string_view name(rest.begin(), end);
    if (name.empty()) throw damaged();
    rest.remove_prefix(name.size());
    return name;
}

// With the sign of equality before it, in quotes of either kind.
std::string_view take_value(std::string_view& rest) {
    pass_blanks(rest);
    if (!rest.starts_with('=')) throw damaged();
    rest.remove_prefix(1);
    pass_blanks(rest);
    if (!rest.starts_with('"') && !rest.starts_with('\'')) throw damaged();
    const std::size_t end = rest.find(rest.front(), 1);
    if (end == std::string_view::npos) throw damaged();
    const std::string_view value = rest.substr(1, end - 1);
    if (value.find('<') != std::string_view::npos) throw damaged();
    rest.remove_prefix(end + 1);
    return value;
}

std::string_view without_prefix(std::string_view name) {
    return name.substr(name.find(':') + 1);
}

bool declares_prefix(std::string_view attribute) {
    return attribute == "xmlns" || attribute.starts_with("xmlns:");
}

}  // namespace

bool XmlPart::next() {
    if (std::exchange(ends_at_once_, false)) return end_element(), true;
    for (;;) {
        while (part_.window().empty())
            if (!part_.more()) return finish();
        if (part_.window().front() != '<') {
            read_letters();
            if (depth_ > 0) return true;
        } else if (read_mark()) {
            return true;
        }
    }
}

bool XmlPart::finish() {
    if (depth_ > 0 || !had_root_) throw damaged();
    token_ = Token::none;
    return false;
}

void XmlPart::read_letters() {
    std::size_t end = 0;
    for (std::size_t from = 0; (end = part_.window().find('<', from)) == std::string_view::npos;) {
        from = part_.window().size();
        if (!part_.more()) {
            end = from;
            break;
        }
    }
    letters_ = take(end);
    token_ = Token::letters;
    if (depth_ > 0) return;
    if (!had_root_ && letters_.starts_with(byte_order_mark)) letters_.remove_prefix(byte_order_mark.size());
    if (!std::ranges::all_of(letters_, is_blank)) throw damaged();
}

void XmlPart::read_raw_letters() {
    constexpr std::string_view begin = "<![CDATA[", end = "]]>";
    if (depth_ == 0) throw damaged();
    letters_ = take(end_of(end));
    letters_ = letters_.substr(begin.size(), letters_.size() - begin.size() - end.size());
    token_ = Token::raw_letters;
}

// Whether it is a token: comments and instructions are passed over.
bool XmlPart::read_mark() {
    if (begins_with("</")) return read_end(), true;
    if (begins_with("<![CDATA[")) return read_raw_letters(), true;
    if (begins_with("<!--")) return take(end_of("-->")), false;
    if (begins_with("<?xml ")) return read_declaration(take(end_of("?>"))), false;
    if (begins_with("<?")) return take(end_of("?>")), false;
    if (begins_with("<!")) throw damaged();
    return read_start(), true;
}

void XmlPart::read_start() {
    std::string_view tag = take(end_of_tag());
    tag = tag.substr(1, tag.size() - 2);
    ends_at_once_ = tag.ends_with('/');
    if (ends_at_once_) tag.remove_suffix(1);
    if (depth_ == deepest_nesting || (depth_ == 0 && std::exchange(had_root_, true))) throw damaged();
    const std::string_view name = take_name(tag);
    read_attributes(tag);
    if (open_.size() == depth_) open_.emplace_back();
    open_[depth_++].assign(name);
    name_ = without_prefix(name);
    token_ = Token::start;
}

void XmlPart::read_end() {
    std::string_view tag = take(end_of_tag());
    tag = tag.substr(2, tag.size() - 3);
    const std::string_view name = take_name(tag);
    pass_blanks(tag);
    if (!tag.empty() || depth_ == 0 || open_[depth_ - 1] != name) throw damaged();
    end_element();
}

void XmlPart::end_element() {
    name_ = without_prefix(open_[--depth_]);
    token_ = Token::end;
}

void XmlPart::read_attributes(std::string_view rest) {
    attributes_.clear();
    for (;;) {
        const bool apart = pass_blanks(rest);
        if (rest.empty()) return;
        if (!apart) throw damaged();
        const std::string_view name = take_name(rest), value = take_value(rest);
        if (!declares_prefix(name)) attributes_.push_back({without_prefix(name), value});
    }
}

// Parts come in UTF-8 or UTF-16, of which nothing is left by now. Words in another encoding would be read wrongly.
void XmlPart::read_declaration(std::string_view declaration) {
    constexpr std::string_view begin = "<?xml", end = "?>";
    read_attributes(declaration.substr(begin.size(), declaration.size() - begin.size() - end.size()));
    const QString encoding = attribute("encoding").toUpper();
    if (!encoding.isEmpty() && !encoding.startsWith(u"UTF-") && encoding != u"US-ASCII") throw damaged();
}

// Within the window, which then holds at least so many bytes.
bool XmlPart::begins_with(std::string_view sign) {
    while (part_.window().size() < sign.size() && part_.more()) continue;
    return part_.window().starts_with(sign);
}

// The place behind the tag with which the window begins. What is quoted does not end it.
std::size_t XmlPart::end_of_tag() {
    char quote = '\0';
    for (std::size_t at = 1;;) {
        const std::string_view window = part_.window();
        for (; at < window.size(); ++at) {
            const char c = window[at];
            if (quote != '\0')
                quote = c == quote ? '\0' : quote;
            else if (c == '"' || c == '\'')
                quote = c;
            else if (c == '>')
                return at + 1;
        }
        if (!part_.more()) throw damaged();
    }
}

// The place behind the sign.
std::size_t XmlPart::end_of(std::string_view sign) {
    for (std::size_t from = 0;;) {
        const std::string_view window = part_.window();
        if (const std::size_t found = window.find(sign, from); found != std::string_view::npos)
            return found + sign.size();
        from = window.size() - std::min(window.size(), sign.size() - 1);
        if (!part_.more()) throw damaged();
    }
}

std::string_view XmlPart::take(std::size_t bytes) {
    const std::string_view taken = part_.window().substr(0, bytes);
    part_.pass(taken.size());
    return taken;
}

std::string_view XmlPart::written(std::string_view attribute) const {
    const auto found = std::ranges::find(attributes_, attribute, &Attribute::name);
    return found == attributes_.end() ? std::string_view() : found->value;
}

QString XmlPart::attribute(std::string_view name) const {
    std::string utf8;
    append_letters(utf8, written(name), false);
    return text_of_utf8(utf8);
}

QString XmlPart::characters() const {
    if (token_ != Token::letters && token_ != Token::raw_letters) return {};
    std::string utf8;
    append_letters(utf8, letters_, token_ == Token::raw_letters);
    return text_of_utf8(utf8);
}

bool XmlPart::next_child() {
    while (next() && !ends())
        if (starts()) return true;
    return false;
}

void XmlPart::skip() {
    for (const std::size_t inside = depth_; depth_ >= inside;) next();
}

std::string_view XmlPart::text() {
    text_.clear();
    for (const std::size_t inside = depth_; depth_ >= inside;) {
        next();
        if (token_ != Token::letters && token_ != Token::raw_letters) continue;
        if (text_.size() < longest_text_in_utf8) append_letters(text_, letters_, token_ == Token::raw_letters);
    }
    return text_;
}

}  // namespace workbook
