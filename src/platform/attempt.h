// Work that may be refused with words, as a paper by its printer, without an end of the program.
#pragma once

#include "platform/prompt.h"

#include <stdexcept>

// Runs `act`. A std::runtime_error is told: `refusal`, and under it the cause. Returns whether `act` came to its end.
template <typename Act>
bool attempt(const QString& refusal, Act act) {
    try {
        act();
        return true;
    } catch (const std::runtime_error& error) {
        prompt::tell(refusal + QStringLiteral("\n\n") + QString::fromUtf8(error.what()), QStringLiteral("Dikkat"));
        return false;
    }
}
