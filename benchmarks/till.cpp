#include "till.h"

#include "big_school.h"
#include "platform/grid_view.h"
#include "raw_store.h"
#include "session/panel_setup.h"

#include <QCoreApplication>

#include <stdexcept>

namespace bench {

namespace {

constexpr int instalments = 6;
constexpr int paid_column = 4;  // of FTahsil_TABLO4

}  // namespace

std::vector<DueStudent> due_students(std::size_t count) {
    std::vector<DueStudent> due;
    RawFile term(BigSchool::term_file);
    RawStatement open = term.prepare("SELECT ONO, VADE FROM Odeme WHERE TUTAR-ODENEN>1000 ORDER BY ONO, VADE");
    while (due.size() <= count && open.step()) {
        const double number = open.number(0);
        if (due.empty() || due.back().number != number) {
            if (!due.empty() && due.back().due_days.size() < instalments) due.pop_back();
            due.push_back({number, {}});
        }
        if (due.back().due_days.size() < instalments) due.back().due_days.push_back(open.text(1));
    }
    if (due.size() <= count) throw std::runtime_error("the school has too few debtors");
    due.pop_back();
    return due;
}

Till::Till() {
    session_.dataRoot = BigSchool::root;
    session_.termCode = QStringLiteral("2026");
    session_.forceTodayOnPosting = QStringLiteral("0");
    session_.collectionsAllowed = 1;
    kurvo_.CommandTAHSILAT->show();
    kurvo_.ComboKASATIP->addItem(QStringLiteral("TL"));
    set_up_list(kurvo_);
    set_up_panels(kurvo_, session_);
    terms_.open();
    kurvo_.show();
    QCoreApplication::processEvents();
}

void Till::prepare(double student) {
    kurvo_.LONO->setText(QString::number(student, 'f', 0));
    session_.studentSelected = true;
    session_.shownStudent = static_cast<std::int64_t>(student);
    statement_.odeme_durumu();
    kurvo_.CommandTAHSILAT->click();
    for (int row = 0; row < instalments; ++row) emit kurvo_.FTahsil_Tablo2->cell_clicked(row, 0);
    kurvo_.CommandTAHSIL->click();
    for (int row = 1; row <= instalments; ++row) kurvo_.FTahsil_TABLO4->set_text(row, paid_column, QStringLiteral("1"));
    kurvo_.FOP->setChecked(true);
    kurvo_.CommandOK2->click();
    QCoreApplication::processEvents();
}

}  // namespace bench
