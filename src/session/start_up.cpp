#include "session/start_up.h"

#include "forms/kurvo.h"
#include "platform/paths.h"
#include "platform/prompt.h"
#include "session/hand_over.h"
#include "session/panel_setup.h"
#include "session/parameter_files.h"
#include "session/rights_mask.h"
#include "session/scratch_file.h"
#include "session/user_options.h"
#include "session/version_check.h"

#include <stdexcept>

namespace {

const QString programs_file = QStringLiteral("c:\\qlm\\Psys.mdb");

// The day board's scratch file of a run that was cut off. A journal left alone would be played back into the
// next file of that name.
void remove_scratch() {
    for (const QString& file : {scratch_file, scratch_file + QStringLiteral("-journal")})
        if (!paths::remove(file))
            throw std::runtime_error(
                QStringLiteral("%1 silinemedi. Dosya başka bir programda açık olabilir.").arg(file).toStdString());
}

// The launcher's row says which programs run on this workstation.
void sign_off() {
    if (!paths::exists(programs_file)) return;
    store::Database launcher = store::OpenDatabase(programs_file);
    store::Recordset programs = launcher.OpenRecordset("prg");
    programs.Index("PX");
    programs.Seek("=", {"Kurvo"});
    if (!programs.NoMatch()) programs.Delete();
}

}  // namespace

StartUp::StartUp(Kurvo& kurvo, SessionContext& session, Terms& terms, InstitutionFlag& institution_flag)
    : kurvo_(kurvo), session_(session), terms_(terms), institution_flag_(institution_flag) {}

bool StartUp::run() {
    remove_scratch();
    const QString rights = take_hand_over(session_);
    if (!check_version()) return false;
    kurvo_.setWindowTitle(kurvo_.windowTitle() + session_.versionText);
    read_user_options(session_);

    session_.termDbOpen = false;
    apply_rights_mask(rights, kurvo_, session_);
    set_up_list(kurvo_);
    session_.listSortColumn = 1;
    terms_.open();
    terms_.donem_listele();
    parametre_oku_gosterimden_once();

    kurvo_.show();
    parametre_oku_gosterimden_sonra();
    set_up_panels(kurvo_, session_);
    session_.reference = load_reference_lists(session_.reference_file(), !kurvo_.CommandETUD->isHidden());
    fill_lessons(kurvo_, session_);
    set_up_exams(kurvo_);
    if (!session_.remoteSchoolKey.isEmpty())
        kurvo_.setWindowTitle(kurvo_.windowTitle() + QStringLiteral("    (%1)").arg(session_.remoteSchoolKey));
    return true;
}

bool StartUp::check_version() {
    if (version_matches(session_)) return true;
    prompt::tell(version_mismatch_text(), QStringLiteral("Dikkat"));
    shut_down();
    return false;
}

void StartUp::parametre_oku_gosterimden_once() {
    parameter_files::read_prmt(session_);
    set_up_note_fonts(kurvo_);
    kurvo_.ComboKASATIP->clear();
    kurvo_.ComboKASATIP->addItems(parameter_files::read_kasa_tip(session_));
    kurvo_.ComboKASATIP->setCurrentIndex(0);
}

void StartUp::parametre_oku_gosterimden_sonra() {
    parameter_files::read_fatura(session_);
    parameter_files::read_tak(session_);
    emit flags_read();
    institution_flag_.apply();
}

void StartUp::shut_down() {
    if (ended_) return;
    ended_ = true;
    terms_.close();
    sign_off();
}
