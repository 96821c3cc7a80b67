#include "fees/promissory_notes.h"

#include "fees/amount_in_words.h"
#include "fees/note_wording.h"
#include "fees/payment_forms.h"
#include "fees/plan_grid.h"
#include "platform/attempt.h"
#include "platform/clock.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/paper_text.h"
#include "platform/refusal.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int notes_a_sheet = 4;

Money open_amount(const GridView& plan, int row) {
    const Money paid = numbers::money(plan.text(row, plan_grid::odenen));  // plain digits, with a point for decimals
    return numbers::whole(plan.text(row, plan_grid::tutar)) - Money::units(paid.rounded());
}

// The height of one note; notes of no height would lie on each other.
double note_height(const SessionContext& session) {
    const double height = numbers::val(session.noteHeight);
    if (height <= 0)
        refuse(u"%1 hatalı: 6. değer (Senet Yükseklik) 0'dan büyük bir sayı olmalı, \"%2\" yazılmış."_s.arg(
            session.data_file(u"Prmt.txt"_s), session.noteHeight));
    return height;
}

}  // namespace

PromissoryNotes::PromissoryNotes(KurvoYeni& form, SessionContext& session) : form_(form), session_(session) {
    on(form_.CommandSENET, &QPushButton::clicked, this, [this] { CommandSENET_Click(); });
    on(form_.CommandSOK, &QPushButton::clicked, this, [this] { CommandSOK_Click(); });
    on(form_.CommandSGERI, &QPushButton::clicked, this, [this] { CommandSGERI_Click(); });
}

void PromissoryNotes::CommandSENET_Click() {
    if (form_.TABLO2->rows() == 0) return;
    if (!attempt(u"Senet metni açılamadı."_s, [this] { note_wording::fill_panel(form_, session_); })) return;
    form_.Frame2->show();
    form_.sADSOY->setFocus();
}

void PromissoryNotes::CommandSGERI_Click() {
    form_.Frame2->hide();
}

void PromissoryNotes::CommandSOK_Click() {
    const bool printed = attempt(u"Senetler basılamadı."_s, [this] {
        const WaitCursor wait;
        note_wording::keep_words(form_, session_);
        print_notes();
    });
    if (printed) CommandSGERI_Click();
}

// A sheet begins with its first note, so that none stays empty behind a full one.
void PromissoryNotes::print_notes() {
    const double top = numbers::val(session_.noteOffsetY), height = note_height(session_);
    PrintSurface paper(u"Senet"_s, form_.ONO->text());
    const GridView& plan = *form_.TABLO2;
    int printed = 0;
    for (int row = 0; row < plan.rows(); ++row) {
        if (plan.text(row, plan_grid::odsek) != payment_forms().first()) continue;
        const Money open = open_amount(plan, row);
        if (open <= Money()) continue;
        const int place = printed++ % notes_a_sheet;
        if (place == 0 && printed > 1) paper.new_page();
        print_note(paper, plan.text(row, plan_grid::vade), open, top + height * place);
    }
    if (printed > 0) paper.end_document();
}

void PromissoryNotes::print_note(PrintSurface& paper, const QString& vade, Money open, double top) {
    const PrintSurface::Font caption{12, true, false, {}}, large{14, true, false, {}}, text{10, false, false, {}};
    form_.VADE->set_key(dates::key_of_shown(vade));
    const auto lines =
        note_wording::lines(form_, note_wording::date_in_words(form_.VADE->date()), tutar_yaziya(open.rounded()));
    const PaperText note[] = {
        {200, 50, caption, u"Ödeme Tarihi : "_s},
        {5000, 50, caption, u"Ödenecek Tutar : "_s},
        {1900, 0, large, form_.VADE->text()},
        {7200, 0, large, numbers::picture(open) + u"  TL."_s},
        {0, 600, text, lines[0]},
        {0, 850, text, lines[1]},
        {0, 1100, text, lines[2]},
        {0, 1350, text, lines[3]},
        {0, 1600, text, lines[4]},
        {0, 2000, text, u"Ödeyecek : "_s + form_.sADSOY->text()},
        {5400, 2000, text, u"Kefil : "_s + form_.sKEFIL->text()},
        {950, 2250, text, form_.sADRES1->text()},
        {6000, 2250, text, form_.sADRES1k->text()},
        {950, 2500, text, form_.sADRES2->text()},
        {6000, 2500, text, form_.sADRES2k->text()},
        {950, 2750, text, form_.sADRES3->text()},
        {0, 3000, text, u"VD. ve No:  "_s + form_.sVD->text() + u"  "_s + form_.sVN->text()},
    };
    print_texts(paper, numbers::val(session_.noteOffsetX), top, note);
}
