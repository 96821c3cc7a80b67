#include "study/scratch_board.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "session/scratch_file.h"

namespace {

store::Recordset create_table(store::Database& database) {
    database.CreateTable(store::scratch_table());
    store::Recordset kayit = database.OpenRecordset("Kayit");
    kayit.Index("TX");
    return kayit;
}

}  // namespace

// What is left of a run that was cut off may be another copy's work: only start-up removes it.
ScratchBoard::Place::Place() {
    if (paths::exists(scratch_file))
        refuse(QStringLiteral("Günün etüdleri hazırlanamıyor: %1 önceki bir çalışmadan kalmış. "
                              "Program yeniden açılırken silinir.")
                   .arg(scratch_file));
}

ScratchBoard::Place::~Place() {
    paths::remove(scratch_file);
}

ScratchBoard::ScratchBoard()
    : database_(store::CreateDatabase(scratch_file)), scope_(database_), kayit_(create_table(database_)) {}

void ScratchBoard::add(store::Recordset& etud) {
    kayit_.Seek("=", {etud["SAAT"].value(), etud["BITSAAT"].value(), etud["KOD"].value(), etud["SICIL"].value()});
    if (!kayit_.NoMatch()) {
        kayit_.Edit();
        kayit_["SAY"] = kayit_["SAY"].whole_number() + 1;
        kayit_.Update();
        return;
    }
    kayit_.AddNew();
    for (const char* field : {"SAAT", "BITSAAT", "KOD", "SICIL", "KONU"}) kayit_[field] = etud[field];
    kayit_["SAY"] = 1;
    kayit_.Update();
}
