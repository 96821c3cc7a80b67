#include "console.h"

#include <QFile>

#include <stdexcept>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <termios.h>
#include <unistd.h>
#endif

namespace console {

namespace {

QByteArray line_of_input() {
    QFile input;
    return input.open(stdin, QIODevice::ReadOnly) ? input.readLine() : QByteArray();
}

// Whether a terminal shows what is typed.
void set_echo(bool shown) {
#ifdef Q_OS_WIN
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(input, &mode) == 0) return;
    SetConsoleMode(input, shown ? mode | ENABLE_ECHO_INPUT : mode & ~static_cast<DWORD>(ENABLE_ECHO_INPUT));
#else
    termios mode{};
    if (tcgetattr(STDIN_FILENO, &mode) != 0) return;
    constexpr tcflag_t echo = ECHO;
    mode.c_lflag = shown ? mode.c_lflag | echo : mode.c_lflag & ~echo;
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &mode);
#endif
}

}  // namespace

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
    const QByteArray answer = line_of_input().trimmed().toLower();
    return answer == "e" || answer == "evet";
}

QString secret(const QString& question) {
    say(question);
    set_echo(false);
    QByteArray line = line_of_input();
    set_echo(true);
    say(QByteArray("\n"));
    while (line.endsWith('\n') || line.endsWith('\r')) line.chop(1);
    return QString::fromUtf8(line);
}

}  // namespace console
