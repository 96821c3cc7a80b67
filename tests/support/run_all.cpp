#include "support/run_all.h"

#include <QApplication>

#include <string>

int run_all(int argc, char** argv) {
    QApplication application(argc, argv);
    application.setAttribute(Qt::AA_Use96Dpi);
    // QtTest's own handler for crashes can go round for ever; a crash shall end the program at once.
    std::string no_handler = "-nocrashhandler";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.push_back(no_handler.data());
    int failed = 0;
    for (const auto test : registered_tests()) failed += test(static_cast<int>(arguments.size()), arguments.data());
    return failed == 0 ? 0 : 1;
}
