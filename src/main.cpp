#include "forms/look.h"
#include "platform/slots.h"
#include "register/program.h"

#include <QApplication>

#include <memory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    look::apply(application);
    std::unique_ptr<Program> program;
    bool running = false;
    fatal::guard([&] {
        program = std::make_unique<Program>();
        running = program->start();
    });
    return running ? QApplication::exec() : 0;
}
