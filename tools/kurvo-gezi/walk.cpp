#include "walk.h"

#include <cstdio>
#include <exception>

namespace {

void say(std::FILE* stream, const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stream);
}

void take(const Step& step, Clerk& clerk) {
    step.act();
    clerk.check_quiet();
    for (const QSize& size : step.sizes) {
        clerk.resize(size);
        const QString tail = step.sizes.size() > 1 ? QStringLiteral("-%1").arg(size.width()) : QString();
        say(stdout, clerk.picture(step.name + tail));
    }
}

}  // namespace

bool go(const Walk& walk, Clerk& clerk) {
    for (const Step& step : walk) {
        try {
            take(step, clerk);
        } catch (const std::exception& error) {
            say(stderr, step.name + QStringLiteral(": ") + QString::fromUtf8(error.what()));
            say(stderr, clerk.picture(step.name + QStringLiteral("-HATA")));
            return false;
        }
    }
    return true;
}
