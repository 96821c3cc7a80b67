// How the program looks: style, palette, font and style sheet, light or dark as the system is.
#pragma once

class QApplication;

namespace look {

// Called once, before the first window is made.
void apply(QApplication& application);

}  // namespace look
