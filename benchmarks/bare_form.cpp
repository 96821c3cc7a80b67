#include "bare_form.h"

namespace bench {

BareForm::BareForm() {
    KurvoForm::setupUi(this);
    FrameSbul::setupUi(Frame_SBUL);
    FrameTahsil::setupUi(Frame_Tahsil);
}

}  // namespace bench
