#include "collections/printer_letters.h"

#include "platform/code_page.h"
#include "platform/numbers.h"

#include <algorithm>

namespace {

// The code page leaves some codes free that a printer's set uses; those stand as the control character of that code.
bool is_free_code(QChar letter) {
    return letter.unicode() >= 0x80 && letter.unicode() < 0xA0 && code_page::code_of(letter) < 0;
}

QChar character_of(const QString& code) {
    const auto byte = static_cast<unsigned char>(numbers::val(code));
    const QChar letter = code_page::letter_of(byte);
    return letter == QChar::ReplacementCharacter ? QChar(byte) : letter;
}

}  // namespace

QString harf_cevir(const QString& text, const PrintSettings& print) {
    if (print.OptPrn != 0) return text;
    QString sent = text;
    for (QChar& letter : sent) {
        const auto row = std::ranges::find(print.fkrk, QString(letter));
        if (row != print.fkrk.end())
            letter = character_of(print.krk[static_cast<std::size_t>(row - print.fkrk.begin())]);
    }
    return sent;
}

QByteArray printer_bytes(const QString& text) {
    QByteArray bytes;
    for (const QChar letter : text)
        if (is_free_code(letter))
            bytes += static_cast<char>(letter.unicode());
        else
            bytes += code_page::encode(QStringView(&letter, 1));
    return bytes;
}
