// A foreseen refusal: what cannot be done ends with words for whoever asked for it.
#pragma once

#include <QString>

#include <stdexcept>

// `words` are Turkish and name the file, the printer or the value that stands in the way.
[[noreturn]] inline void refuse(const QString& words) {
    throw std::runtime_error(words.toStdString());
}
