// What a routine that must refuse says.
#pragma once

#include <QString>

#include <exception>

// The message of the exception that `act` throws; empty when it throws none.
template <typename Act>
QString refusal(Act act) {
    try {
        act();
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}
