// kurvo-gezi FOLDER: walks the real forms without a person and leaves numbered pictures and the papers. It is a
// check too: what is not shown or stored as it must ends it with status 1.
#include "forms/look.h"
#include "walk.h"

#include <QApplication>

#include <cstdio>

namespace {

enum ExitStatus { done = 0, failed = 1, wrong_use = 2 };

// The order matters: a later walk meets what the earlier ones have stored.
const std::vector<Walk (*)(Clerk&)> walks{collection_walk, record_form_walk,  invoice_walk,  renumbering_walk,
                                          day_walk,        student_file_walk, newcomers_walk};

int walk_all(const QString& folder) {
    Office office(folder);
    Clerk clerk(office, folder);
    for (const auto walk : walks)
        if (!go(walk(clerk), clerk)) return failed;
    for (const QString& paper : clerk.papers()) std::puts(QDir(folder).filePath(paper).toUtf8().constData());
    return done;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() != 2 || words[1].startsWith(u'-')) {
        std::fputs("Kullanım: kurvo-gezi KLASÖR\n", words.value(1) == u"--help" ? stdout : stderr);
        return words.value(1) == u"--help" ? done : wrong_use;
    }
    const QDir folder(words[1]);
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "%s yaratılamadı.\n", words[1].toUtf8().constData());
        return failed;
    }
    look::apply(application);
    try {
        return walk_all(folder.absolutePath());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return failed;
    }
}
