#include "register/program.h"

#include "collections/invoice.h"
#include "platform/paths.h"
#include "platform/slots.h"
#include "web/remote_directory.h"

#include <QCoreApplication>

Program::Program()
    : terms_(kurvo_, session_),
      institution_flag_(kurvo_, session_),
      statement_(kurvo_, session_),
      attendance_summaries_(kurvo_, session_, terms_),
      attendance_entry_(kurvo_, session_, terms_, [this] { attendance_summaries_.devam_toplu_doldur(); }),
      session_summaries_(kurvo_, session_, terms_),
      day_board_(kurvo_, session_),
      booking_(kurvo_, session_,
               {[this] { day_board_.gun_tahtasi_doldur(); }, [this] { session_summaries_.etud_toplu_doldur(); }}),
      notes_(kurvo_, session_),
      overview_(kurvo_, session_),
      dossier_(kurvo_, session_),
      card_(kurvo_, session_, followers()),
      list_(kurvo_, session_, card_),
      search_(kurvo_, session_, list_),
      import_(kurvo_, session_, list_),
      photos_(kurvo_, session_, card_),
      record_window_(session_, terms_, {kurvo_, list_, card_},
                     {[this](const KurvoYeni& form) { RemoteDirectory(session_).uzak_ogrenci_yaz(form); },
                      [this](const KurvoYeni& form) { RemoteDirectory(session_).uzak_ogrenci_sil(form); }}),
      collections_(kurvo_, session_, terms_),
      posting_(kurvo_, session_, statement_, collections_,
               {[this] { fatura_yaz(kurvo_, session_); }, [this] { dossier_.plan_yaz(); }}),
      start_up_(kurvo_, session_, terms_, institution_flag_) {
    on(&terms_, &Terms::opened, this, [this] {
        list_.term_opened();
        // The day's sessions are the term's, not the student's.
        if (kurvo_.Frame_Etud->isVisible()) day_board_.gun_tahtasi_doldur();
    });
    on(&start_up_, &StartUp::flags_read, this, [this] { list_.apply_list_state(); });
    on(&kurvo_, &Kurvo::closing, this, [this] { end(); });
    PrintSurface::set_observer([this](const PrintSurface::Document& paper) { tell_file(paper); });
}

Program::~Program() {
    PrintSurface::set_observer({});
}

bool Program::start() {
    return start_up_.run();
}

CardFollowers Program::followers() {
    CardFollowers followers;
    followers.show_note = [this] { notes_.show_note(); };
    followers.show_overview = [this] { overview_.show_student(); };
    followers.devam_toplu_doldur = [this] { attendance_summaries_.devam_toplu_doldur(); };
    followers.etud_toplu_doldur = [this] { session_summaries_.etud_toplu_doldur(); };
    followers.odeme_durumu = [this] { statement_.odeme_durumu(); };
    followers.devam_gunu_yukle = [this] { attendance_entry_.devam_gunu_yukle(); };
    followers.etud_liste_doldur = [this] { booking_.etud_liste_doldur(); };
    followers.default_button = [this] {
        return kurvo_.Frame_Devam->isVisible() ? kurvo_.FDevam_CommandKAYDET : kurvo_.CommanOK;
    };
    return followers;
}

// A paper that no printer gives out lies somewhere, and the clerk has to find it.
void Program::tell_file(const PrintSurface::Document& paper) {
    const QString place =
        paper.file.isEmpty()
            ? QString()
            : QStringLiteral("%1 PDF dosyası olarak kaydedildi: %2").arg(paper.paper, paths::office_name(paper.file));
    kurvo_.status(place);
    if (KurvoYeni* form = record_form()) form->status(place);
}

// A window that is still open beside the main form ends with it.
void Program::end() {
    start_up_.shut_down();
    QCoreApplication::quit();
}
