// The main form as its .ui files draw it, with nothing behind it.
#pragma once

#include "forms/kurvo_drawing.h"

#include <QWidget>

namespace bench {

class BareForm : public QWidget, public KurvoDrawing {
public:
    BareForm() { draw(this); }
};

}  // namespace bench
