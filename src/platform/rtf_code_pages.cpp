#include "platform/rtf_code_pages.h"

#include "platform/code_page.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

namespace rtf {

namespace {

using Letters = std::array<QChar, 256>;

Letters turkish_letters() {
    Letters letters;
    for (std::size_t code = 0; code < letters.size(); ++code)
        letters[code] = code_page::letter_of(static_cast<unsigned char>(code));
    return letters;
}

// Western European differs from Turkish in these places only, and every Qt must know it.
Letters western_letters() {
    Letters letters = turkish_letters();
    for (const std::size_t code : {0xD0, 0xDD, 0xDE, 0xF0, 0xFD, 0xFE})
        letters[code] = QChar(static_cast<ushort>(code));
    letters[0x8E] = u'Ž';
    letters[0x9E] = u'ž';
    return letters;
}

// The character sets of fonts that name a code page, and who decodes it where this machine's Qt can.
struct Page {
    int charset;
    int code_page;
    const char* codec;
};
constexpr Page pages[] = {{77, 10000, "macintosh"},    {161, 1253, "windows-1253"}, {162, 1254, nullptr},
                          {163, 1258, "windows-1258"}, {177, 1255, "windows-1255"}, {178, 1256, "windows-1256"},
                          {186, 1257, "windows-1257"}, {204, 1251, "windows-1251"}, {222, 874, "windows-874"},
                          {238, 1250, "windows-1250"}, {254, 437, "IBM437"},        {255, 850, "IBM850"}};

const char* codec_name(int code_page) {
    const auto page = std::ranges::find(pages, code_page, &Page::code_page);
    return page == std::end(pages) ? nullptr : page->codec;
}

Letters decoded_letters(const char* codec) {
    Letters letters = turkish_letters();
    for (std::size_t code = 0x80; code < letters.size(); ++code) {
        QStringDecoder decoder(codec);
        const char byte = static_cast<char>(code);
        const QString letter = decoder.isValid() ? QString(decoder(QByteArrayView(&byte, 1))) : QString();
        if (letter.size() == 1) letters[code] = letter[0];
    }
    return letters;
}

Letters make_letters(int code_page) {
    if (code_page == 1252) return western_letters();
    const char* codec = codec_name(code_page);
    return codec ? decoded_letters(codec) : turkish_letters();
}

}  // namespace

const QChar* letters_of_code_page(int code_page) {
    static const Letters turkish = turkish_letters();
    if (code_page == 1254 || (code_page != 1252 && !codec_name(code_page))) return turkish.data();
    thread_local std::map<int, Letters> made;
    const auto found = made.find(code_page);
    if (found != made.end()) return found->second.data();
    return made.emplace(code_page, make_letters(code_page)).first->second.data();
}

int code_page_of_charset(int charset, int document_page) {
    const auto page = std::ranges::find(pages, charset, &Page::charset);
    return page == std::end(pages) ? document_page : page->code_page;
}

}  // namespace rtf
