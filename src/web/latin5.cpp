#include "web/latin5.h"

#include "platform/code_page.h"

#include <utility>

namespace {

constexpr int no_place = -1;

constexpr std::pair<QStringView, char> nearest_signs[] = {
    {u"\u2018\u2019\u201A\u201B\u2032\u2039\u203A", '\''},       // single quotes
    {u"\u201C\u201D\u201E\u201F\u2033", '"'},                    // double quotes
    {u"\u2010\u2011\u2012\u2013\u2014\u2015\u2212", '-'},        // dashes
    {u"\u2002\u2003\u2004\u2005\u2007\u2008\u2009\u202F", ' '},  // blanks of other widths
    {u"\u2022", '*'},                                            // the dot of a list
    {u"\u2026", '.'}};

// Code page 1254 has further letters where ISO 8859-9 has control codes; everywhere else the two are the same.
int code_of(QChar letter) {
    const int code = code_page::code_of(letter);
    return code >= 0x80 && code < 0xA0 ? no_place : code;
}

char nearest(QChar letter) {
    if (const int code = code_of(letter); code != no_place) return static_cast<char>(code);
    for (const auto& [signs, sign] : nearest_signs)
        if (signs.contains(letter)) return sign;
    const int bare = code_of(QString(letter).normalized(QString::NormalizationForm_D).front());
    return bare == no_place ? '?' : static_cast<char>(bare);
}

}  // namespace

QByteArray latin5::encode(QStringView text) {
    QByteArray bytes;
    // A letter that was typed as letter and accent is one letter in the set.
    for (const QChar letter : text.toString().normalized(QString::NormalizationForm_C))
        if (!letter.isLowSurrogate()) bytes.append(nearest(letter));
    return bytes;
}

QString latin5::decode(QByteArrayView bytes) {
    return code_page::decode(bytes);
}
