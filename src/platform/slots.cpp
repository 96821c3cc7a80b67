#include "platform/slots.h"

#include "platform/prompt.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace {

fatal::Handler handler;
bool ending = false;

void print_error(const char* what) {
    std::fprintf(stderr, "kurvo: %s\n", what);
    std::fflush(stderr);
}

void unforeseen(const std::exception& error) {
    if (handler) {
        handler(error);
    } else if (ending) {
        // The first error's box is still on the screen, and its event loop ran into the next one.
        print_error(error.what());
    } else {
        fatal::end_program(error);
    }
}

}  // namespace

// Without destructors of statics and without exit handlers: after something unforeseen they could fail in turn. Open
// edits roll back when the process is gone.
void fatal::end_program(const std::exception& error) {
    print_error(error.what());
    if (!std::exchange(ending, true) && qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        try {
            prompt::critical(QStringLiteral("Beklenmeyen bir hata oluştu, program kapanıyor.\n\n") +
                             QString::fromUtf8(error.what()));
        } catch (const std::exception& in_the_box) {
            print_error(in_the_box.what());
        }
    }
    std::_Exit(1);
}

void fatal::guard(const std::function<void()>& body) {
    try {
        body();
    } catch (const std::exception& error) {
        unforeseen(error);
    } catch (...) {
        unforeseen(std::runtime_error("Bilinmeyen bir hata."));
    }
}

void fatal::set_handler(Handler new_handler) {
    handler = std::move(new_handler);
}
