#include "console.h"

#include <QFile>

#include <stdexcept>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace console {

void say(const QByteArray& utf8) {
    if (std::fwrite(utf8.data(), 1, static_cast<std::size_t>(utf8.size()), stdout) ==
            static_cast<std::size_t>(utf8.size()) &&
        std::fflush(stdout) == 0)
        return;
    throw std::runtime_error("Çıktı yazılamadı.");
}

void say(const QString& text) {
    say(text.toUtf8());
}

void plain_bytes(std::FILE* stream) {
#ifdef Q_OS_WIN
    _setmode(_fileno(stream), _O_BINARY);
#else
    Q_UNUSED(stream)
#endif
}

QByteArray standard_input() {
    plain_bytes(stdin);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) throw std::runtime_error("Girdi okunamadı.");
    return input.readAll();
}

bool agrees(const QString& question) {
    say(question + QStringLiteral(" (e/h) "));
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) return false;
    const QByteArray answer = input.readLine().trimmed().toLower();
    return answer == "e" || answer == "evet";
}

}  // namespace console
