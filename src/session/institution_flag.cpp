#include "session/institution_flag.h"

#include "forms/kurvo.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "session/parameter_files.h"

InstitutionFlag::InstitutionFlag(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    on(kurvo_.CheckKad, &QCheckBox::clicked, this, [this] { CheckKad_Click(); });
}

void InstitutionFlag::apply() {
    kurvo_.CheckKad->setChecked(numbers::val(session_.uiFlags.mid(1, 1)) != 0);
}

void InstitutionFlag::CheckKad_Click() {
    session_.uiFlags = session_.uiFlags.left(1) + (kurvo_.CheckKad->isChecked() ? u'1' : u'0');
    bayrak_yaz(session_);
}
