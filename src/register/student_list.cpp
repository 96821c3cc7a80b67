#include "register/student_list.h"

#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "register/student_card.h"
#include "register/text_color.h"
#include "session/parameter_files.h"

#include <utility>

namespace {

constexpr unsigned active_heading = 0xC0FFFF;
constexpr unsigned inactive_heading = 0xFFFFC0;
constexpr int number_column = 1;

void mark_heading(Kurvo& kurvo, int column, bool active) {
    set_text_color(*kurvo.bslk[static_cast<std::size_t>(column)], active ? active_heading : inactive_heading);
}

}  // namespace

StudentList::StudentList(Kurvo& kurvo, SessionContext& session, StudentCard& card)
    : kurvo_(kurvo), session_(session), card_(card) {
    on(kurvo_.TABLO, &GridView::cell_clicked, this, [this] { TABLO_Click(); });
    on(kurvo_.TabloAcKapa, &QPushButton::clicked, this, [this] { TabloAcKapa_Click(); });
    for (int column = 0; column < static_cast<int>(kurvo_.bslk.size()); ++column)
        on(kurvo_.bslk[static_cast<std::size_t>(column)], &ClickableLabel::clicked, this,
           [this, column] { liste_sirala(column); });
}

void StudentList::ogrenci_listele() {
    GridView& list = *kurvo_.TABLO;
    store::Recordset& students = session_.studentTable;
    const bool leave_out_hidden = session_.hideArchived == u"1";
    {
        const GridView::Filling filling(list);
        list.set_rows(0);
        list.clear();
        list.set_rows(static_cast<int>(students.RecordCount()));
        int row = 0;
        store::scan_all(students, [&] {
            if (leave_out_hidden && students["SAKLA"].number() == 1) return;
            if (row == list.rows()) list.set_rows(row + 1);  // another workstation has added one meanwhile
            list.set_text(row, 0, students["SINIF"].text());
            list.set_text(row, number_column, students["ONO"].text());
            list.set_text(row, 2, students["ADSOY"].text());
            ++row;
        });
        list.set_rows(row);
    }
    mark_heading(kurvo_, number_column, true);
}

void StudentList::liste_sirala(int column) {
    if (column == session_.listSortColumn) return;
    mark_heading(kurvo_, session_.listSortColumn, false);
    GridView& list = *kurvo_.TABLO;
    if (list.row() >= 0) list.set_current(list.row(), column);
    list.sort_by(column);
    session_.listSortColumn = column;
    mark_heading(kurvo_, column, true);
}

void StudentList::listeyi_yenile() {
    const int chosen = session_.listSortColumn;
    ogrenci_listele();
    session_.listRowCount = kurvo_.TABLO->rows();
    session_.listSortColumn = number_column;
    liste_sirala(chosen);
}

void StudentList::term_opened() {
    mark_heading(kurvo_, 0, false);
    mark_heading(kurvo_, 2, false);
    GridView& list = *kurvo_.TABLO;
    Filled now{session_.termDb.stamp(), session_.hideArchived, list.revision()};
    if (filled_ == now) {
        list.forget_current();
        mark_heading(kurvo_, number_column, true);
    } else {
        ogrenci_listele();
        now.revision = list.revision();
        filled_ = std::move(now);
    }
    card_.mark_number_box();
}

void StudentList::apply_list_state() {
    show_list(!session_.uiFlags.startsWith(u'0'));
}

void StudentList::TABLO_Click() {
    const GridView& list = *kurvo_.TABLO;
    if (list.row() < 0) return;
    kurvo_.LONO->setText(numbers::plain(numbers::val(list.text(list.row(), number_column))));
    card_.ogrenci_goster();
}

void StudentList::TabloAcKapa_Click() {
    const bool open = kurvo_.TABLO->isHidden();
    show_list(open);
    session_.uiFlags = (open ? u'1' : u'0') + session_.uiFlags.mid(1);
    bayrak_yaz(session_);
}

void StudentList::show_list(bool open) {
    kurvo_.TabloAcKapa->setText(open ? QStringLiteral(" -") : QStringLiteral(" +"));
    if (open != kurvo_.TABLO->isHidden()) return;
    kurvo_.TABLO->setVisible(open);
    // A lock of its own, so that it holds beside a lock of the student's choice and outlives it.
    const std::vector<QWidget*> headings(kurvo_.bslk.begin(), kurvo_.bslk.end());
    open ? kurvo_.kilidi_ac(headings) : kurvo_.kilitle(headings);
}
