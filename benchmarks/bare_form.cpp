#include "bare_form.h"

namespace bench {

BareForm::BareForm() {
    KurvoForm::setupUi(this);
    FrameSbul::setupUi(Frame_SBUL);
    FrameTahsil::setupUi(Frame_Tahsil);
    FrameDevam::setupUi(Frame_Devam);
    FrameEtud::setupUi(Frame_Etud);
    FrameNot::setupUi(Frame_Not);
    FrameToplu::setupUi(Frame_Toplu);
    FrameDosyadan::setupUi(Frame_Dosyadan);
    auto* collections = new QFrame(this);  // the pop-up over all panels
    FrameTablo3::setupUi(collections);
    collections->hide();
}

}  // namespace bench
