#include "platform/turkish.h"

#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace turkish {

namespace {

// The alphabet as pairs of a small and a capital letter. A foreign letter stands right behind its base letter; one
// without a partner stands twice. The order of the pairs orders stored indexes: it never changes.
constexpr char16_t alphabet[] =
    u"aAàÀáÁâÂãÃäÄåÅªªæÆ"
    u"bB"
    u"cC"
    u"çÇ"
    u"dD"
    u"eEèÈéÉêÊëË"
    u"fFƒƒ"
    u"gG"
    u"ğĞ"
    u"hH"
    u"ıI"
    u"iİìÌíÍîÎïÏ"
    u"jJ"
    u"kK"
    u"lL"
    u"mM"
    u"nNñÑ"
    u"oOòÒóÓôÔõÕøØººœŒ"
    u"öÖ"
    u"pP"
    u"qQ"
    u"rR"
    u"sSšŠßß"
    u"şŞ"
    u"tT"
    u"uUùÙúÚûÛ"
    u"üÜ"
    u"vV"
    u"wW"
    u"xX"
    u"yYÿŸ"
    u"zZ";
constexpr std::size_t alphabet_size = std::size(alphabet) - 1;

// A sign weighs its code in the code page, so it stands before the digits and these before the letters. What has no
// place in the code page follows by its code point.
using Weight = std::uint32_t;
constexpr Weight first_digit = 0x100;
constexpr Weight first_letter = first_digit + 10;
constexpr Weight first_outside = 0x200;
static_assert(first_letter + alphabet_size / 2 < first_outside);

Weight weigh(char32_t point) {
    for (std::size_t i = 0; i < alphabet_size; ++i)
        if (alphabet[i] == point) return first_letter + static_cast<Weight>(i / 2);
    if (point >= U'0' && point <= U'9') return first_digit + (point - U'0');
    const int code = point > 0xFFFF ? -1 : code_page::code_of(QChar(static_cast<char16_t>(point)));
    return code >= 0 ? static_cast<Weight>(code) : first_outside + static_cast<Weight>(point);
}

// Ready weights of what almost every text is made of.
const std::array<Weight, 0x180> common = [] {
    std::array<Weight, 0x180> weights{};
    for (std::size_t point = 0; point < weights.size(); ++point) weights[point] = weigh(static_cast<char32_t>(point));
    return weights;
}();

Weight weight_of(char32_t point) {
    return point < common.size() ? common[point] : weigh(point);
}

// Reads one code point after the other; what is no proper text counts as U+FFFD, byte by byte.
class Utf8Reader {
public:
    Utf8Reader(const char* text, int size) : at_(reinterpret_cast<const unsigned char*>(text)), end_(at_ + size) {}

    bool at_end() const { return at_ == end_; }
    char32_t next() {
        const char32_t first = *at_++;
        if (first < 0x80) return first;
        const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
        if (more == 0 || first > 0xF4 || end_ - at_ < more) return QChar::ReplacementCharacter;
        char32_t point = first & (0x3Fu >> more);
        for (int i = 0; i < more; ++i) {
            if ((at_[i] & 0xC0) != 0x80) return QChar::ReplacementCharacter;
            point = point << 6 | (at_[i] & 0x3Fu);
        }
        at_ += more;
        return point;
    }

private:
    const unsigned char* at_;
    const unsigned char* end_;
};

class Utf16Reader {
public:
    explicit Utf16Reader(QStringView text) : at_(text.utf16()), end_(at_ + text.size()) {}

    bool at_end() const { return at_ == end_; }
    char32_t next() {
        const char16_t unit = *at_++;
        if (!QChar::isSurrogate(unit)) return unit;
        if (QChar::isLowSurrogate(unit) || at_ == end_ || !QChar::isLowSurrogate(*at_))
            return QChar::ReplacementCharacter;
        return QChar::surrogateToUcs4(unit, *at_++);
    }

private:
    const char16_t* at_;
    const char16_t* end_;
};

bool continues_letter(const char* text, int size, int at) {
    return at < size && (text[at] & 0xC0) == 0x80;
}

// How many bytes of whole letters both texts begin with: keys of one student or one day differ at the end only.
int same_begin(const char* left, int left_size, const char* right, int right_size) {
    const int shorter = std::min(left_size, right_size);
    int at = 0;
    for (std::uint64_t a = 0, b = 0; at + 8 <= shorter; at += 8) {
        std::memcpy(&a, left + at, 8);
        std::memcpy(&b, right + at, 8);
        if (a != b) break;
    }
    while (at < shorter && left[at] == right[at]) ++at;
    while (at > 0 && (continues_letter(left, left_size, at) || continues_letter(right, right_size, at))) --at;
    return at;
}

template <typename Reader>
int compare_read(Reader left, Reader right) {
    while (!left.at_end() && !right.at_end()) {
        const Weight a = weight_of(left.next());
        const Weight b = weight_of(right.next());
        if (a != b) return a < b ? -1 : 1;
    }
    return static_cast<int>(!left.at_end()) - static_cast<int>(!right.at_end());
}

}  // namespace

QString capital(const QString& typed) {
    QString result = typed;
    for (QChar& letter : result) letter = capital(letter);
    return result;
}

// A letter whose capital the code page does not hold, as µ, stays as it is.
QChar capital(QChar typed) {
    const QChar letter = typed == u'i' ? QChar(u'İ') : typed.toUpper();
    return code_page::code_of(letter) < 0 ? typed : letter;
}

int compare(QStringView left, QStringView right) {
    return compare_read(Utf16Reader(left), Utf16Reader(right));
}

int compare_utf8(const char* left, int left_size, const char* right, int right_size) {
    const int same = same_begin(left, left_size, right, right_size);
    return compare_read(Utf8Reader(left + same, left_size - same), Utf8Reader(right + same, right_size - same));
}

// Two bytes a letter, four for what lies outside of the code page.
std::string sort_key(QStringView text) {
    constexpr char outside = first_outside >> 8;
    std::string key;
    for (Utf16Reader reader(text); !reader.at_end();) {
        const Weight weight = weight_of(reader.next());
        if (weight >= first_outside) (key += outside) += static_cast<char>(weight >> 16);
        (key += static_cast<char>(weight >> 8)) += static_cast<char>(weight);
    }
    return key;
}

bool before_by_code(const QString& left, const QString& right) {
    Utf16Reader a(left), b(right);
    while (!a.at_end() && !b.at_end()) {
        const char32_t x = a.next();
        const char32_t y = b.next();
        if (x != y) return x < y;
    }
    return a.at_end() && !b.at_end();
}

}  // namespace turkish
