#include "register/name_search.h"

#include "platform/control_events.h"
#include "platform/grid_view.h"
#include "platform/slots.h"
#include "platform/turkish.h"
#include "register/student_list.h"

#include <QStringMatcher>

#include <algorithm>

namespace {

constexpr int name_column = 2;
constexpr int row_column = 3;
constexpr int first_rows = 64;

// What follows the last blank. A blank in the very last place does not part a surname off.
QStringView surname(QStringView name) {
    if (name.size() < 2) return name;
    return name.sliced(name.lastIndexOf(u' ', name.size() - 2) + 1);
}

}  // namespace

NameSearch::NameSearch(Kurvo& kurvo, const SessionContext& session, StudentList& list)
    : kurvo_(kurvo), session_(session), list_(list) {
    on(kurvo_.CommandSBUL, &QPushButton::clicked, this, [this] { CommandSBUL_Click(); });
    on(kurvo_.CommandSARA, &QPushButton::clicked, this, [this] { CommandSARA_Click(); });
    on(kurvo_.TABLO_SBUL, &GridView::cell_clicked, this,
       [this](int row, int) { TABLO_SBUL_Click(kurvo_.TABLO_SBUL->text(row, row_column).toInt()); });
    control_events::on_key_press(kurvo_.FSBUL_soyad, [this](QChar key) {
        return session_.upperCaseNames == u"1" ? turkish::capital(key) : key;
    });
    // The marked buttons lie on other panels and answer only while they are seen, so Enter stays with this box.
    on(kurvo_.FSBUL_soyad, &QLineEdit::returnPressed, this, [this] { kurvo_.CommandSARA->click(); });
}

void NameSearch::CommandSBUL_Click() {
    if (kurvo_.TABLO->rows() == 0) return;
    kurvo_.panel_goster(Kurvo::Panel::SBUL);
    kurvo_.FSBUL_soyad->setFocus();
}

void NameSearch::CommandSARA_Click() {
    const GridView& list = *kurvo_.TABLO;
    GridView& hits = *kurvo_.TABLO_SBUL;
    const bool surname_only = kurvo_.FSBUL_CH->isChecked();
    const QStringMatcher wanted(kurvo_.FSBUL_soyad->text());

    const GridView::Filling filling(hits);
    hits.set_rows(0);
    hits.clear();
    int found = 0;
    for (int row = 0; row < list.rows(); ++row) {
        const QString name = list.text(row, name_column);
        if (wanted.indexIn(surname_only ? surname(name) : QStringView(name)) < 0) continue;
        if (found == hits.rows()) hits.set_rows(std::max(first_rows, 2 * found));
        hits.set_row(found++, {list.text(row, 0), list.text(row, 1), name, QString::number(row)});
    }
    hits.set_rows(found);
    kurvo_.FSBUL_msg->setVisible(found > 0);
}

void NameSearch::TABLO_SBUL_Click(int row) {
    GridView& list = *kurvo_.TABLO;
    if (row >= list.rows()) return;
    list.set_current(row, std::max(0, list.column()));
    list_.TABLO_Click();
}
