#include "overview/dossier.h"

#include "overview/dossier_sections.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

#include <QScopeGuard>

namespace {

// The boxes ChkY.
enum Box { study_absences = 0, family_and_note = 1, absences = 2, study_sessions = 3, payments = 4 };

}  // namespace

Dossier::Dossier(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    on(kurvo_.CommandYAZF, &QPushButton::clicked, this, [this] { CommandYAZF_Click(); });
    on(kurvo_.CommandYAZFT, &QPushButton::clicked, this, [this] { CommandYAZFT_Click(); });
    on(kurvo_.CommandVAZGECY, &QPushButton::clicked, this, [this] { CommandVAZGECY_Click(); });
}

std::vector<QWidget*> Dossier::locked_controls() const {
    std::vector<QWidget*> controls = kurvo_.student_choice();
    controls.insert(controls.end(), {kurvo_.SSTab1, kurvo_.CommandYAZF});
    return controls;
}

void Dossier::CommandYAZF_Click() {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    offer_sections();
    kurvo_.FToplu_FrameYaz->show();
    kurvo_.CommandYAZFT->setFocus();
    kurvo_.kilitle(locked_controls());
}

// A section without rows is not to be had.
void Dossier::offer_sections() {
    kurvo_.ChkY[family_and_note]->setEnabled(true);
    kurvo_.ChkY[family_and_note]->setChecked(true);
    const std::pair<Box, const GridView*> sections[] = {{absences, kurvo_.FToplu_DEVAMS},
                                                        {study_absences, kurvo_.FToplu_DEVAMSe},
                                                        {study_sessions, kurvo_.FToplu_ETUDLER},
                                                        {payments, kurvo_.FToplu_Tablo2}};
    for (const auto& [box, grid] : sections) {
        const bool has_rows = grid->rows() > grid->fixed_rows();
        kurvo_.ChkY[box]->setEnabled(has_rows);
        kurvo_.ChkY[box]->setChecked(has_rows);
    }
}

// A print that no choice has preceded holds no lock.
void Dossier::CommandVAZGECY_Click() {
    if (kurvo_.FToplu_FrameYaz->isHidden()) return;
    kurvo_.kilidi_ac(locked_controls());
    kurvo_.FToplu_FrameYaz->hide();
    kurvo_.CommandYAZF->setFocus();
}

void Dossier::CommandYAZFT_Click() {
    const auto closing = qScopeGuard([this] { CommandVAZGECY_Click(); });
    print(QStringLiteral("Öğrenci Dosyası"));
}

void Dossier::plan_yaz() {
    for (QCheckBox* box : kurvo_.ChkY) box->setChecked(false);
    kurvo_.ChkY[payments]->setEnabled(true);
    kurvo_.ChkY[payments]->setChecked(true);
    print(QStringLiteral("Ödeme Planı"));
}

bool Dossier::wanted(int box) const {
    const QCheckBox* choice = kurvo_.ChkY[static_cast<std::size_t>(box)];
    return choice->isChecked() && choice->isEnabledTo(choice->parentWidget());
}

void Dossier::print(const QString& paper_name) {
    // Below the identity block, or beyond the end of a page that family and note fill.
    constexpr double below_identity = 2000, full = 15000;
    const WaitCursor wait;
    const bool with_family = wanted(family_and_note);
    DossierTemplate first(kurvo_, session_, with_family);
    PrintSurface paper(paper_name, kurvo_.LONO->text());
    paper.line_width(session_.line_width());
    DossierPages pages(paper, first, kurvo_.LADSOYAD->text(), with_family ? full : below_identity);
    if (wanted(payments)) dossier_sections::payments(pages, kurvo_, session_.termDb);
    if (wanted(absences)) dossier_sections::absences(pages, kurvo_);
    if (wanted(study_absences)) dossier_sections::study_absences(pages, kurvo_);
    if (wanted(study_sessions)) dossier_sections::study_sessions(pages, kurvo_);
    pages.finish();
    paper.end_document();
}
