#include "forms/look.h"
#include "platform/slots.h"
#include "register/program.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace {

// The dialogs for files and colours and the menus of the text boxes bring words of their own.
void speak_turkish(QApplication& application) {
    auto* words = new QTranslator(&application);
    if (words->load(QStringLiteral("qtbase_tr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(words);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    speak_turkish(application);
    look::apply(application);
    std::unique_ptr<Program> program;
    bool running = false;
    fatal::guard([&] {
        program = std::make_unique<Program>();
        running = program->start();
    });
    return running ? QApplication::exec() : 0;
}
