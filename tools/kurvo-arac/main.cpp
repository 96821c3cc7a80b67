// kurvo-arac: sets a school up, fills, dumps and launches. Stands in for the suite's set-up and launcher.
#include "verbs.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { done = 0, refused = 1, misused = 2 };

void print(std::FILE* stream, const QString& text) {
    std::fputs((text + u'\n').toUtf8().constData(), stream);
}

QString overall_help() {
    QString text = u"Kullanım: kurvo-arac FİİL …\n\n"_s;
    for (const Verb& verb : verbs()) text += u"  %1 %2\n"_s.arg(verb.name.leftJustified(10), verb.summary);
    return text +
           uR"(
Bir fiilin ayrıntısı: kurvo-arac FİİL --help

Sürücüler KURVO_DRIVES klasörünün altındadır: c:\qlm\log.txt orada c/qlm/log.txt olur.
Çıkış durumu: 0 oldu, 1 kabul edilmedi, 2 yanlış kullanım.)"_s;
}

QString help_of(const Verb& verb) {
    return u"Kullanım: kurvo-arac %1\n\n%2\n\n%3"_s.arg(usage_of(verb), verb.summary, verb.help);
}

int run(const Verb& verb, const QStringList& words) {
    if (words.contains(u"--help"_s)) {
        print(stdout, help_of(verb));
        return done;
    }
    try {
        verb.run(Arguments(words, verb.options, verb.positionals.split(u' ', Qt::SkipEmptyParts)));
        return done;
    } catch (const std::invalid_argument& error) {
        print(stderr, QString::fromUtf8(error.what()));
        print(stderr, u"Kullanım: kurvo-arac "_s + usage_of(verb));
        return misused;
    } catch (const std::exception& error) {
        print(stderr, QString::fromUtf8(error.what()));
        return refused;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().sliced(1);
    if (words.isEmpty() || words.first() == u"--help"_s) {
        print(words.isEmpty() ? stderr : stdout, overall_help());
        return words.isEmpty() ? misused : done;
    }
    const auto same = [&](const Verb& verb) { return verb.name == words.first(); };
    const auto verb = std::find_if(verbs().begin(), verbs().end(), same);
    if (verb == verbs().end()) {
        print(stderr, u"Böyle bir fiil yok: "_s + words.first());
        return misused;
    }
    return run(*verb, words.sliced(1));
}
