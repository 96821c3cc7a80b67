#include "session/terms.h"

#include "forms/kurvo.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "session/emptying.h"

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
    emptying::search(kurvo_);
    close();
    session_.termCode = kurvo_.SDONEM->currentText();
    session_.listSortColumn = number_column;
    open();
}

void Terms::leave_student() {
    emit leaving();
    forget_student();
    emptying::card(kurvo_);
    kurvo_.Text1->clear();
    emptying::collections(kurvo_);
    if (!kurvo_.CommandDEVAMSIZLIK->isHidden()) emptying::attendance_day(kurvo_);
    if (!kurvo_.CommandETUD->isHidden()) emptying::study_sessions(kurvo_);
    if (!kurvo_.CommandTOPLU->isHidden()) emptying::overview(kurvo_);
    if (!kurvo_.CommandTOPLU->isHidden() || !kurvo_.CommandTAHSILAT->isHidden()) emptying::statement(kurvo_);
}

void Terms::forget_student() {
    session_.studentSelected = false;
    session_.shownStudent = 0;
    session_.photoFile.clear();
    kurvo_.LONO->clear();
    kurvo_.Image1->clear();
}
