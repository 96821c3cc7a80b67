#include "study/scratch_board.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "session/scratch_file.h"

#include <algorithm>
#include <utility>

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

// The day comes in the order of its hours, so that a session is found near the end.
void ScratchBoard::add(store::Recordset& etud) {
    const std::array<store::Value, 4> key{etud["SAAT"].value(), etud["BITSAAT"].value(), etud["KOD"].value(),
                                          etud["SICIL"].value()};
    const auto counted =
        std::find_if(counted_.rbegin(), counted_.rend(), [&](const Session& session) { return session.key == key; });
    if (counted != counted_.rend())
        ++counted->students;
    else
        counted_.push_back({key, etud["KONU"].value(), 1});
}

store::Recordset& ScratchBoard::rows() {
    for (const Session& session : std::exchange(counted_, {})) write(session);
    return kayit_;
}

// The order of the key takes texts for one that are written differently; they count as one session too.
void ScratchBoard::write(const Session& session) {
    const auto& [start, end, lesson, teacher] = session.key;
    kayit_.Seek("=", {start, end, lesson, teacher});
    if (!kayit_.NoMatch()) {
        kayit_.Edit();
        kayit_["SAY"] = kayit_["SAY"].whole_number() + session.students;
        kayit_.Update();
        return;
    }
    kayit_.AddNew();
    kayit_["SAAT"] = start;
    kayit_["BITSAAT"] = end;
    kayit_["KOD"] = lesson;
    kayit_["SICIL"] = teacher;
    kayit_["SAY"] = session.students;
    kayit_["KONU"] = session.topic;
    kayit_.Update();
}
