#include "platform/code_page.h"

#include <QList>

#include <array>
#include <stdexcept>

namespace code_page {

namespace {

constexpr char16_t no_letter = 0xFFFD;

// 0x80 to 0x9F; above, the code page is Latin 1 but for the six Turkish letters of turkish_places.
constexpr std::array<char16_t, 32> upper_controls = {
    0x20AC,    no_letter, 0x201A, 0x0192, 0x201E, 0x2026,    0x2020,    0x2021,     // 80
    0x02C6,    0x2030,    0x0160, 0x2039, 0x0152, no_letter, no_letter, no_letter,  // 88
    no_letter, 0x2018,    0x2019, 0x201C, 0x201D, 0x2022,    0x2013,    0x2014,     // 90
    0x02DC,    0x2122,    0x0161, 0x203A, 0x0153, no_letter, no_letter, 0x0178};    // 98

struct Place {
    unsigned char code;
    char16_t letter;
};
constexpr Place turkish_places[] = {{0xD0, u'Ğ'}, {0xDD, u'İ'}, {0xDE, u'Ş'}, {0xF0, u'ğ'}, {0xFD, u'ı'}, {0xFE, u'ş'}};

constexpr std::array<char16_t, 256> make_letters() {
    std::array<char16_t, 256> letters{};
    for (std::size_t code = 0; code < 256; ++code) letters[code] = static_cast<char16_t>(code);
    for (std::size_t i = 0; i < upper_controls.size(); ++i) letters[0x80 + i] = upper_controls[i];
    for (const Place& place : turkish_places) letters[place.code] = place.letter;
    return letters;
}
constexpr std::array<char16_t, 256> letters = make_letters();

std::string no_place(QStringView text, qsizetype at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
    const QString letter = text.mid(at, pair ? 2 : 1).toString();
    const uint code = letter.toUcs4().value(0);
    return QStringLiteral("\"%1\" harfi (U+%2) Türkçe kod sayfasında yok.")
        .arg(letter, QString::number(code, 16).toUpper().rightJustified(4, u'0'))
        .toStdString();
}

}  // namespace

QString decode(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* to = text.data();
    for (const char byte : bytes) *to++ = QChar(letters[static_cast<unsigned char>(byte)]);
    return text;
}

QByteArray encode(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* to = bytes.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int code = code_of(text[i]);
        if (code < 0) throw std::runtime_error(no_place(text, i));
        *to++ = static_cast<char>(code);
    }
    return bytes;
}

int code_of(QChar letter) {
    const char16_t unit = letter.unicode();
    if (unit < 0x100 && letters[unit] == unit) return unit;
    if (unit == no_letter) return -1;
    for (const Place& place : turkish_places)
        if (place.letter == unit) return place.code;
    for (std::size_t i = 0; i < upper_controls.size(); ++i)
        if (upper_controls[i] == unit) return static_cast<int>(0x80 + i);
    return -1;
}

QChar letter_of(unsigned char code) {
    return QChar(letters[code]);
}

}  // namespace code_page
