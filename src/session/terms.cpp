#include "session/terms.h"

#include "forms/kurvo.h"
#include "platform/cell_editor.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

namespace {

constexpr int number_column = 1;

// Terms beside `current`, in the order of their file names; both spellings of one that differs in case.
QStringList other_terms(const SessionContext& session) {
    QStringList terms;
    for (const QString& name : paths::files_in(session.data_file({}), QStringLiteral("ogr.mdb"))) {
        const qsizetype end = name.indexOf(QStringLiteral("ogr"));
        if (end >= 0 && name.left(end) != session.termCode) terms.append(name.left(end));
    }
    return terms;
}

void empty_columns(GridView& grid, int first, int last) {
    for (int row = 1; row < grid.rows(); ++row)
        for (int column = first; column <= last; ++column) grid.set_text(row, column, {});
}

void empty_absences(GridView& lessons, GridView& days, std::initializer_list<QLabel*> totals) {
    empty_columns(lessons, 2, 4);
    days.set_rows(1);
    for (QLabel* total : totals) total->setText(QStringLiteral("0"));
}

}  // namespace

Terms::Terms(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    // Only a choice by the clerk comes as activated; it comes for the term that is open already too.
    on(kurvo_.SDONEM, &QComboBox::activated, this, [this] { donem_degistir(); });
}

void Terms::open() {
    session_.termDb = store::OpenDatabase(session_.term_file());
    session_.studentTable = session_.termDb.OpenRecordset("Ogrenci");
    session_.studentTable.Index("ONOX");
    emit opened();
    session_.listRowCount = kurvo_.TABLO->rows();
    session_.termDbOpen = true;
}

void Terms::close() {
    if (!session_.termDbOpen) return;
    session_.termDbOpen = false;
    session_.studentTable.Close();
    session_.termDb.Close();
}

void Terms::donem_listele() {
    kurvo_.SDONEM->clear();
    kurvo_.SDONEM->addItem(session_.termCode);
    kurvo_.SDONEM->addItems(other_terms(session_));
    kurvo_.SDONEM->setCurrentIndex(0);
    donem_degistir();
}

void Terms::donem_degistir() {
    const WaitCursor wait;
    leave_student();
    empty_search();
    close();
    session_.termCode = kurvo_.SDONEM->currentText();
    session_.listSortColumn = number_column;
    open();
}

void Terms::leave_student() {
    emit leaving();
    forget_student();
    empty_card();
    kurvo_.Text1->clear();
    empty_collections();
    if (!kurvo_.CommandDEVAMSIZLIK->isHidden()) empty_attendance();
    if (!kurvo_.CommandETUD->isHidden()) empty_sessions();
    if (!kurvo_.CommandTOPLU->isHidden()) empty_overview();
    if (!kurvo_.CommandTOPLU->isHidden() || !kurvo_.CommandTAHSILAT->isHidden()) empty_statement();
}

void Terms::forget_student() {
    session_.studentSelected = false;
    session_.shownStudent = 0;
    session_.photoFile.clear();
    kurvo_.LONO->clear();
    kurvo_.Image1->clear();
}

void Terms::empty_card() {
    for (QLabel* label : std::initializer_list<QLabel*>{
             kurvo_.LADSOYAD, kurvo_.LTCNO,    kurvo_.LSNF,    kurvo_.LTEL,   kurvo_.LVELI,   kurvo_.LVTEL,
             kurvo_.LVGSM,    kurvo_.LANNE,    kurvo_.LATEL,   kurvo_.LAGSM,  kurvo_.LBABA,   kurvo_.LBTEL,
             kurvo_.LBGSM,    kurvo_.LGELOKUL, kurvo_.LOKULNO, kurvo_.LACK,   kurvo_.LKAYTAR, kurvo_.TTUTAR,
             kurvo_.TODENEN,  kurvo_.TBORC,    kurvo_.LGRUP,   kurvo_.LBOLUM, kurvo_.LDIN})
        label->clear();
}

// The open instalments and the amounts too, so that nothing can be posted for nobody.
void Terms::empty_collections() {
    for (QLineEdit* box : {kurvo_.fADSOY, kurvo_.fADRES1, kurvo_.fADRES2, kurvo_.fILCE, kurvo_.fIL}) box->clear();
    kurvo_.FTahsil_Tablo2->set_rows(0);
    kurvo_.ODENEN->clear();
    kurvo_.KASAODENEN->clear();
}

// Lessons that stood there for the former student's day alone go too.
void Terms::empty_attendance() {
    kurvo_.FDevam_Cel_In->hide();
    kurvo_.FDevam_Tablo2->set_rows(static_cast<int>(session_.reference.lessons.size()) + 1);
    empty_columns(*kurvo_.FDevam_Tablo2, 2, 4);
    kurvo_.MAZERET->clear();
}

void Terms::empty_sessions() {
    for (GridView* sessions : {kurvo_.FEtud_Tablo1, kurvo_.FEtud_Tablo2}) sessions->set_rows(1);
    kurvo_.FEtud_BASLIK2->clear();  // a date over no rows would say that the day has no sessions
}

void Terms::empty_overview() {
    kurvo_.FToplu_Text1->clear();
    for (std::size_t i = 4; i < kurvo_.FToplu_OO.size(); ++i) kurvo_.FToplu_OO[i]->clear();
    empty_absences(*kurvo_.FToplu_DERSLER, *kurvo_.FToplu_DEVAMS,
                   {kurvo_.FToplu_TOP1, kurvo_.FToplu_TOP2, kurvo_.FToplu_TOP3});
    empty_absences(*kurvo_.FToplu_DERSLERe, *kurvo_.FToplu_DEVAMSe,
                   {kurvo_.FToplu_TOP1e, kurvo_.FToplu_TOP2e, kurvo_.FToplu_TOP3e});
    kurvo_.FToplu_ETUDLER->set_rows(1);
    empty_columns(*kurvo_.FToplu_DERSLER_ETUD, 2, 3);
}

void Terms::empty_statement() {
    kurvo_.FToplu_Tablo2->set_rows(1);
    kurvo_.FToplu_KTUTAR->clear();
    kurvo_.FToplu_TFARK->clear();
}

void Terms::empty_search() {
    kurvo_.TABLO_SBUL->set_rows(0);
    kurvo_.TABLO_SBUL->clear();
    kurvo_.FSBUL_msg->hide();  // it asks for a click on one of the hits
}
