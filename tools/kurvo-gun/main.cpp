// kurvo-gun DESK DRIVES: one of the two clerks of a day, at a workstation that sees the school on its drive p:. At each
// meeting it says "waiting" and goes on at a line from the standard input. Status 1 where a step does not show what it
// must; papers and the picture of that step lie in DRIVES/kagit.
#include "day_school.h"
#include "desk.h"
#include "forms/look.h"

#include <QApplication>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { done = 0, failed = 1, wrong_use = 2 };

struct Shift {
    QString user;
    QTime begins;
    Walk (*walk)(Clerk&);
};

std::optional<Shift> shift_of(const QString& desk) {
    if (desk == u"1") return Shift{u"AYLA"_s, QTime(9, 15), first_desk};
    if (desk == u"2") return Shift{u"BORA"_s, QTime(10, 40), second_desk};
    return std::nullopt;
}

bool work(const Shift& shift, const QString& drives) {
    const QString papers = drives + u"/kagit"_s;
    must(QDir().mkpath(papers), papers + u" cannot be made"_s);
    Office office(
        Workstation{drives, day_school::root, shift.user, QDateTime(QDate(2026, 10, 5), shift.begins), papers});
    Clerk clerk(office, papers);
    return go(shift.walk(clerk), clerk);
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    const std::optional<Shift> shift = shift_of(words.value(1));
    if (words.size() != 3 || !shift) {
        std::fputs("Kullanım: kurvo-gun 1|2 SÜRÜCÜLER\n", stderr);
        return wrong_use;
    }
    look::apply(application);
    try {
        return work(*shift, words[2]) ? done : failed;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return failed;
    }
}
