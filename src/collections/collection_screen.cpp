#include "collections/collection_screen.h"

#include "collections/grids.h"
#include "platform/cell_editor.h"
#include "platform/clock.h"
#include "platform/control_events.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "session/terms.h"

#include <algorithm>

namespace {

const QString marked = QStringLiteral("X");
const QString unmarked = QStringLiteral(" ");

// Option buttons that stand alone in their group cannot be unchecked while the group is exclusive.
void uncheck(QRadioButton* option) {
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
}

void hide(std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) control->hide();
}

}  // namespace

CollectionScreen::CollectionScreen(Kurvo& kurvo, SessionContext& session, Terms& terms)
    : kurvo_(kurvo), session_(session) {
    lay_out();
    connect_first_stage();
    connect_second_stage();
    on(&terms, &Terms::leaving, this, [this] { donem_degisecek(); });
}

void CollectionScreen::lay_out() {
    kurvo_.FTahsil_TABLO4->set_fixed(1, 0);
    hide({kurvo_.CommandOK, kurvo_.CommandGERI, kurvo_.FTahsil_Frame1, kurvo_.FTahsil_Frame2, kurvo_.Cel_In});
}

void CollectionScreen::connect_first_stage() {
    on(kurvo_.CommandTAHSILAT, &QPushButton::clicked, this, [this] { CommandTAHSILAT_Click(); });
    on(kurvo_.FTahsil_Tablo2, &GridView::cell_clicked, this, [this](int row, int) { FTahsil_Tablo2_Click(row); });
    control_events::on_got_focus(kurvo_.ODENEN, this, [this] { typing_ = true; });
    on(kurvo_.ODENEN, &QLineEdit::textChanged, this, [this] { ODENEN_Change(); });
    on(kurvo_.CommandTAHSIL, &QPushButton::clicked, this, [this] { CommandTAHSIL_Click(); });
}

void CollectionScreen::connect_second_stage() {
    on(kurvo_.FTahsil_TABLO4, &GridView::cell_pressed, this,
       [this](int row, int column) { FTahsil_TABLO4_MouseDown(row, column); });
    on(kurvo_.FTahsil_TABLO4, &GridView::cell_clicked, this, [this](int row, int column) {
        // A key opens the editor; the mouse has done so when it was pressed.
        const bool is_open = row == edited_row_ && column == chosen_grid::odenen && kurvo_.Cel_In->isVisible();
        if (!is_open) FTahsil_TABLO4_MouseDown(row, column);
    });
    on(kurvo_.FTahsil_TABLO4, &GridView::scrolled, this, [this] { kurvo_.Cel_In->hide(); });
    on(kurvo_.Cel_In, &QLineEdit::textChanged, this, [this] { Cel_In_Change(); });
    on(kurvo_.MOP, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) MOP_Click();
    });
    on(kurvo_.FOP, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) FOP_Click();
    });
    on(kurvo_.CommandOK2, &QPushButton::clicked, this, [this] { CommandOK2_Click(); });
    control_events::on_got_focus(kurvo_.FTahsil_TARIH, this, [this] { kurvo_.Cel_In->hide(); });
    control_events::on_got_focus(kurvo_.FTahsil_BNO, this, [this] { kurvo_.Cel_In->hide(); });
    on(kurvo_.CommandGERI, &QPushButton::clicked, this, [this] { CommandGERI_Click(); });
}

void CollectionScreen::CommandTAHSILAT_Click() {
    if (!session_.studentSelected) return;
    kurvo_.panel_goster(Kurvo::Panel::Tahsil);
    kurvo_.CommandOK->hide();
    kurvo_.CommandGERI->hide();
}

// The open amount is a picture ("1.250") and needs the whole-number rule; what is to be paid is plain digits.
void CollectionScreen::FTahsil_Tablo2_Click(int row) {
    GridView& grid = *kurvo_.FTahsil_Tablo2;
    typing_ = false;
    const bool mark = grid.text(row, open_grid::mark) == unmarked;
    grid.set_text(row, open_grid::mark, mark ? marked : unmarked);
    grid.set_text(row, open_grid::odenecek,
                  mark ? numbers::plain(numbers::whole(grid.text(row, open_grid::kalan))) : QString());
    Money total;
    for (int i = 0; i < grid.rows(); ++i)
        if (grid.text(i, open_grid::mark) == marked) total += numbers::money(grid.text(i, open_grid::odenecek));
    kurvo_.ODENEN->setText(numbers::plain(total));
    copy_to_till();
    kurvo_.ODENEN->setText(numbers::picture(total));
}

void CollectionScreen::ODENEN_Change() {
    if (!typing_) return;
    copy_to_till();
    // Who has paid too much owes nothing, and so can pay nothing.
    const Money debt = std::max(Money(), numbers::whole(kurvo_.TBORC->text()));
    if (numbers::larger_of_readers(kurvo_.ODENEN->text()) > debt) {
        kurvo_.ODENEN->setText(numbers::whole_picture(debt));  // comes back here with the clipped text
        return;
    }
    unmark_from(spread(numbers::whole(kurvo_.ODENEN->text())));
}

// Pays the earliest instalments in full and the next one in part; returns the row behind the last touched one.
// Amounts rounded to whole units can add up to less than the debt: the walk then begins again, and ends when a
// whole pass has distributed nothing.
int CollectionScreen::spread(Money rest) {
    GridView& grid = *kurvo_.FTahsil_Tablo2;
    int next = 0;
    bool distributed = true;
    while (rest > Money() && distributed) {
        distributed = false;
        for (int row = 0; row < grid.rows() && rest > Money(); ++row) {
            const Money part = std::min(numbers::whole(grid.text(row, open_grid::kalan)), rest);
            grid.set_text(row, open_grid::mark, marked);
            grid.set_text(row, open_grid::odenecek, numbers::plain(part));
            next = row + 1;
            rest -= part;
            distributed = distributed || part > Money();
        }
    }
    return next;
}

void CollectionScreen::unmark_from(int row) {
    GridView& grid = *kurvo_.FTahsil_Tablo2;
    for (; row < grid.rows(); ++row) {
        grid.set_text(row, open_grid::odenecek, QString());
        grid.set_text(row, open_grid::mark, unmarked);
    }
}

void CollectionScreen::copy_to_till() {
    if (kurvo_.ComboKASATIP->currentText() == u"TL") kurvo_.KASAODENEN->setText(kurvo_.ODENEN->text());
}

void CollectionScreen::CommandTAHSIL_Click() {
    const int count = marked_count();
    if (count == 0 || in_second_stage()) return;
    kurvo_.kilitle({kurvo_.ODENEN, kurvo_.KASAODENEN});
    clear_document();
    fill_chosen(count);
    kurvo_.CommandTAHSIL->hide();
    kurvo_.CommandOK->show();
    kurvo_.CommandGERI->show();
    kurvo_.FTahsil_Frame1->show();
    kurvo_.kilitle(kurvo_.student_choice());
    kurvo_.MOP->setFocus();
}

void CollectionScreen::clear_document() {
    for (QRadioButton* option : {kurvo_.MOP, kurvo_.FOP, kurvo_.DOP}) uncheck(option);
    kurvo_.FTahsil_BNO->clear();
    kurvo_.KFISNO->clear();
}

int CollectionScreen::marked_count() const {
    const GridView& grid = *kurvo_.FTahsil_Tablo2;
    int count = 0;
    for (int row = 0; row < grid.rows(); ++row) count += grid.text(row, open_grid::mark) == marked ? 1 : 0;
    return count;
}

void CollectionScreen::fill_chosen(int count) {
    const GridView& open = *kurvo_.FTahsil_Tablo2;
    GridView& chosen = *kurvo_.FTahsil_TABLO4;
    const GridView::Filling filling(chosen);
    chosen.set_rows(count + 1);
    chosen.clear();
    chosen.set_row(0, chosen_grid::headings);
    int to = 1;
    for (int row = 0; row < open.rows(); ++row) {
        if (open.text(row, open_grid::mark) != marked) continue;
        chosen.set_row(
            to++, {open.text(row, open_grid::vade), open.text(row, open_grid::odsek), open.text(row, open_grid::ack),
                   open.text(row, open_grid::kalan), open.text(row, open_grid::odenecek)});
    }
}

void CollectionScreen::FTahsil_TABLO4_MouseDown(int row, int column) {
    edited_row_ = row;
    // An editor left over another row would write its amount there.
    if (column != chosen_grid::odenen) return kurvo_.Cel_In->hide();
    kurvo_.Cel_In->open(*kurvo_.FTahsil_TABLO4, row, column, kurvo_.FTahsil_TABLO4->text(row, column),
                        CellEditor::Caret::at_start);
}

void CollectionScreen::Cel_In_Change() {
    GridView& grid = *kurvo_.FTahsil_TABLO4;
    if (edited_row_ < grid.fixed_rows() || edited_row_ >= grid.rows()) return;
    const QString open = grid.text(edited_row_, chosen_grid::kalan);
    if (numbers::larger_of_readers(kurvo_.Cel_In->text()) > numbers::whole(open)) {
        kurvo_.Cel_In->setText(open);  // comes back here with the open amount
        return;
    }
    grid.set_text(edited_row_, chosen_grid::odenen, numbers::picture(kurvo_.Cel_In->text()));
    kurvo_.ODENEN->setText(QStringLiteral("0"));
    kurvo_.ODENEN->setText(numbers::picture(sum_of_chosen(chosen_grid::odenen)));
    copy_to_till();
}

Money CollectionScreen::sum_of_chosen(int column) const {
    const GridView& grid = *kurvo_.FTahsil_TABLO4;
    Money sum;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) sum += numbers::whole(grid.text(row, column));
    return sum;
}

void CollectionScreen::MOP_Click() {
    propose_number(QStringLiteral("M"));
}

void CollectionScreen::FOP_Click() {
    propose_number(QStringLiteral("F"));
    show_invoice_details(true);
}

void CollectionScreen::CommandOK2_Click() {
    show_invoice_details(false);
    kurvo_.FTahsil_BNO->setFocus();
}

void CollectionScreen::propose_number(const QString& series) {
    kurvo_.Cel_In->hide();
    store::Database reference = store::OpenDatabase(session_.reference_file());
    store::Recordset belgeno = reference.OpenRecordset("Belgeno");
    belgeno.Index("SERIX");
    belgeno.Seek("=", {series});
    const double last = belgeno.NoMatch() ? 0 : belgeno["SNO"].required().number();
    kurvo_.FTahsil_BNO->setText(numbers::plain(last + 1));
}

// While the details of an invoice are asked for, neither its number nor its kind may change.
void CollectionScreen::show_invoice_details(bool shown) {
    kurvo_.FTahsil_Frame2->setVisible(shown);
    kurvo_.CommandOK->setVisible(!shown);
    kurvo_.CommandGERI->setVisible(!shown);
    const std::initializer_list<QWidget*> held{kurvo_.FTahsil_TARIH, kurvo_.FTahsil_BNO, kurvo_.MOP, kurvo_.FOP};
    for (QWidget* control : held) control->setEnabled(!shown);
}

void CollectionScreen::CommandGERI_Click() {
    if (!in_second_stage()) return;
    // The open amounts, not the corrected ones.
    kurvo_.ODENEN->setText(numbers::picture(sum_of_chosen(chosen_grid::kalan)));
    kurvo_.FTahsil_TABLO4->clear();
    kurvo_.FTahsil_TABLO4->set_rows(0);
    kurvo_.CommandTAHSIL->show();
    hide({kurvo_.CommandOK, kurvo_.CommandGERI, kurvo_.FTahsil_Frame1, kurvo_.Cel_In});
    kurvo_.kilidi_ac(kurvo_.student_choice());
    kurvo_.kilidi_ac({kurvo_.ODENEN, kurvo_.KASAODENEN});
    // Else the keys would go to whatever comes next, and an arrow key could change the term.
    kurvo_.FTahsil_Tablo2->setFocus();
}

void CollectionScreen::donem_degisecek() {
    if (!kurvo_.FTahsil_Frame2->isHidden()) show_invoice_details(false);
    CommandGERI_Click();
}
