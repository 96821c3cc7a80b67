// Connecting handlers so that no exception leaves a slot, and the one end of everything unforeseen.
#pragma once

#include <QObject>

#include <exception>
#include <functional>
#include <utility>

namespace fatal {

// A critical box with what failed, then the process ends with status 1. Outer frames are not unwound.
[[noreturn]] void end_program(const std::exception& error);

// Runs `body`; an exception ends the program. In a test a handler may be set that throws or records instead.
void guard(const std::function<void()>& body);
using Handler = std::function<void(const std::exception&)>;
void set_handler(Handler handler);  // an empty handler restores end_program

}  // namespace fatal

// Typed connect whose handler is guarded. `context` owns the connection.
template <typename Sender, typename Signal, typename Slot>
QMetaObject::Connection on(Sender* sender, Signal signal, QObject* context, Slot slot) {
    return QObject::connect(sender, signal, context, [slot = std::move(slot)](auto&&... arguments) mutable {
        fatal::guard([&] {
            if constexpr (std::is_invocable_v<Slot&, decltype(arguments)...>)
                slot(std::forward<decltype(arguments)>(arguments)...);
            else
                slot();
        });
    });
}
