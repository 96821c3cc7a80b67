// The main form as its .ui files draw it, with nothing behind it.
#pragma once

#include "ui_frame_devam.h"
#include "ui_frame_dosyadan.h"
#include "ui_frame_etud.h"
#include "ui_frame_not.h"
#include "ui_frame_sbul.h"
#include "ui_frame_tablo3.h"
#include "ui_frame_tahsil.h"
#include "ui_frame_toplu.h"
#include "ui_kurvo.h"

#include <QWidget>

namespace bench {

class BareForm : public QWidget,
                 public Ui::KurvoForm,
                 public Ui::FrameSbul,
                 public Ui::FrameTahsil,
                 public Ui::FrameDevam,
                 public Ui::FrameEtud,
                 public Ui::FrameNot,
                 public Ui::FrameToplu,
                 public Ui::FrameDosyadan,
                 public Ui::FrameTablo3 {
public:
    BareForm();
};

}  // namespace bench
