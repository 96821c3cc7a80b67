// The colour dialog of the program.
#pragma once

#include "platform/override.h"

#include <QColor>

namespace color_choice {

// Starts with `start`. Gives the colour it ends with; an invalid one where the clerk picks none.
QColor pick(const QColor& start);

// A choice in place of a person's. It gets the start colour.
using Override = ::Override<struct Color, QColor(const QColor&)>;

}  // namespace color_choice
