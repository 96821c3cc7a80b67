// The main form as its .ui files draw it, with nothing behind it.
#pragma once

#include "ui_frame_sbul.h"
#include "ui_frame_tahsil.h"
#include "ui_kurvo.h"

#include <QWidget>

namespace bench {

class BareForm : public QWidget, public Ui::KurvoForm, public Ui::FrameSbul, public Ui::FrameTahsil {
public:
    BareForm();
};

}  // namespace bench
