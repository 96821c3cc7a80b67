#include "forms/kurvo_drawing.h"

void KurvoDrawing::draw(QWidget* form) {
    KurvoForm::setupUi(form);
    FrameSbul::setupUi(Frame_SBUL);
    FrameTahsil::setupUi(Frame_Tahsil);
    FrameDevam::setupUi(Frame_Devam);
    FrameEtud::setupUi(Frame_Etud);
    FrameNot::setupUi(Frame_Not);
    FrameToplu::setupUi(Frame_Toplu);
    FrameDosyadan::setupUi(Frame_Dosyadan);
    Ftoplu_FTABLO3 = new QFrame(form);
    FrameTablo3::setupUi(Ftoplu_FTABLO3);
    Ftoplu_FTABLO3->setObjectName(QStringLiteral("Ftoplu_FTABLO3"));
    Ftoplu_FTABLO3->hide();
}
