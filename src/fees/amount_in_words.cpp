#include "fees/amount_in_words.h"

#include <array>

namespace {

using Words = std::array<const char16_t*, 10>;

constexpr Words hundreds{u"",       u"Yüz",     u"İkiyüz",  u"Üçyüz",    u"Dörtyüz",
                         u"Beşyüz", u"Altıyüz", u"Yediyüz", u"Sekizyüz", u"Dokuzyüz"};
constexpr Words tens{u"", u"On", u"Yirmi", u"Otuz", u"Kırk", u"Elli", u"Altmış", u"Yetmiş", u"Seksen", u"Doksan"};
constexpr Words ones{u"", u"Bir", u"İki", u"Üç", u"Dört", u"Beş", u"Altı", u"Yedi", u"Sekiz", u"Dokuz"};
constexpr std::array scales{u"Milyar ", u"Milyon ", u"Bin ", u""};

constexpr int group_size = 3;
constexpr int length = group_size * static_cast<int>(scales.size());

QString word(const Words& words, QChar digit) {
    const bool is_digit = digit >= u'0' && digit <= u'9';
    return QString::fromUtf16(words[is_digit ? static_cast<std::size_t>(digit.unicode() - u'0') : 0]);
}

}  // namespace

QString tutar_yaziya(std::int64_t amount) {
    return tutar_yaziya(QString::number(amount));
}

QString tutar_yaziya(const QString& digits) {
    const QString text = digits.trimmed().rightJustified(length, u'0');
    QString result;
    int at = 0;
    for (const char16_t* scale : scales) {
        QString group = word(hundreds, text[at]) + word(tens, text[at + 1]) + word(ones, text[at + 2]);
        at += group_size;
        if (!group.isEmpty()) group += QString::fromUtf16(scale);
        // One thousand is said without "one".
        result += group == u"BirBin " ? QStringLiteral("Bin ") : group;
    }
    return result;
}
