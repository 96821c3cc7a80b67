// The controls of the main form as its .ui files draw them, with nothing behind them.
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

// A form inherits it and draws itself once, before any control is used. The controls belong to the form.
struct KurvoDrawing : Ui::KurvoForm,
                      Ui::FrameSbul,
                      Ui::FrameTahsil,
                      Ui::FrameDevam,
                      Ui::FrameEtud,
                      Ui::FrameNot,
                      Ui::FrameToplu,
                      Ui::FrameTablo3,
                      Ui::FrameDosyadan {
    QFrame* Ftoplu_FTABLO3;  // the pop-up with the collections of an instalment, over all panels

    void draw(QWidget* form);
};
