#include "study/day_board.h"

#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "study/reference_names.h"
#include "study/scratch_board.h"
#include "study/session_times.h"

DayBoard::DayBoard(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    // A date half typed is taken when the form closes, and the term is closed by then.
    on(kurvo_.FEtud_TARIH, &DatePicker::dateChanged, this, [this] {
        if (session_.termDbOpen) gun_tahtasi_doldur();
    });
}

// A day without sessions makes no scratch file.
void DayBoard::gun_tahtasi_doldur() {
    const WaitCursor wait;
    kurvo_.FEtud_Tablo2->set_rows(1);
    kurvo_.FEtud_BASLIK2->setText(dates::shown(kurvo_.FEtud_TARIH->date()) + QStringLiteral(" tarihindeki etüdler :"));

    store::Recordset etud = session_.termDb.OpenRecordset("Etud");
    etud.Index("TSX");
    std::optional<ScratchBoard> scratch;
    store::scan_prefix(etud, {kurvo_.FEtud_TARIH->key()}, [&] {
        if (!scratch) scratch.emplace();
        scratch->add(etud);
    });
    if (scratch) show_rows(*scratch);
}

void DayBoard::show_rows(ScratchBoard& scratch) {
    GridView& board = *kurvo_.FEtud_Tablo2;
    store::Recordset& kayit = scratch.rows();
    ReferenceNames names(session_.reference_file());
    const GridView::Filling filling(board);
    board.set_rows(static_cast<int>(kayit.RecordCount()) + 1);
    int row = 1;
    store::scan_all(kayit, [&] {
        board.set_row(row++, {session_times::shown(kayit["SAAT"].text()), session_times::shown(kayit["BITSAAT"].text()),
                              names.lesson(kayit["KOD"].value()), kayit["SAY"].text(),
                              names.teacher(kayit["SICIL"].value()), kayit["KONU"].text()});
    });
}
