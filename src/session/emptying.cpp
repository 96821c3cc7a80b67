#include "session/emptying.h"

#include "forms/kurvo.h"
#include "platform/grid_view.h"
#include "session/lesson_grid.h"

#include <algorithm>

namespace emptying {

void card(Kurvo& kurvo) {
    for (QLabel* label : std::initializer_list<QLabel*>{
             kurvo.LADSOYAD, kurvo.LTCNO,    kurvo.LSNF,    kurvo.LTEL,   kurvo.LVELI,   kurvo.LVTEL,
             kurvo.LVGSM,    kurvo.LANNE,    kurvo.LATEL,   kurvo.LAGSM,  kurvo.LBABA,   kurvo.LBTEL,
             kurvo.LBGSM,    kurvo.LGELOKUL, kurvo.LOKULNO, kurvo.LACK,   kurvo.LKAYTAR, kurvo.TTUTAR,
             kurvo.TODENEN,  kurvo.TBORC,    kurvo.LGRUP,   kurvo.LBOLUM, kurvo.LDIN})
        label->clear();
}

// The open instalments and the amounts too, so that nothing can be posted for nobody.
void collections(Kurvo& kurvo) {
    for (QLineEdit* box : {kurvo.fADSOY, kurvo.fADRES1, kurvo.fADRES2, kurvo.fILCE, kurvo.fIL}) box->clear();
    kurvo.FTahsil_Tablo2->set_rows(0);
    kurvo.ODENEN->clear();
    kurvo.KASAODENEN->clear();
}

void attendance_day(Kurvo& kurvo) {
    GridView& grid = *kurvo.FDevam_Tablo2;
    int rows = grid.rows();
    while (rows > grid.fixed_rows() && grid.text(rows - 1, lesson_grid::name).isEmpty()) --rows;
    grid.set_rows(rows);
    counters(grid);
    kurvo.MAZERET->clear();
}

void study_sessions(Kurvo& kurvo) {
    for (GridView* sessions : {kurvo.FEtud_Tablo1, kurvo.FEtud_Tablo2}) sessions->set_rows(1);
    kurvo.FEtud_BASLIK2->clear();  // a date over no rows would say that the day has no sessions
}

void overview(Kurvo& kurvo) {
    kurvo.FToplu_Text1->clear();
    for (std::size_t i = 4; i < kurvo.FToplu_OO.size(); ++i) kurvo.FToplu_OO[i]->clear();
    for (GridView* lessons : {kurvo.FToplu_DERSLER, kurvo.FToplu_DERSLERe, kurvo.FToplu_DERSLER_ETUD})
        counters(*lessons);
    for (GridView* details : {kurvo.FToplu_DEVAMS, kurvo.FToplu_DEVAMSe, kurvo.FToplu_ETUDLER}) details->set_rows(1);
    totals({kurvo.FToplu_TOP1, kurvo.FToplu_TOP2, kurvo.FToplu_TOP3});
    totals({kurvo.FToplu_TOP1e, kurvo.FToplu_TOP2e, kurvo.FToplu_TOP3e});
}

void statement(Kurvo& kurvo) {
    kurvo.FToplu_Tablo2->set_rows(1);
    kurvo.FToplu_KTUTAR->clear();
    kurvo.FToplu_TFARK->clear();
}

void search(Kurvo& kurvo) {
    kurvo.TABLO_SBUL->set_rows(0);
    kurvo.TABLO_SBUL->clear();
    kurvo.FSBUL_msg->hide();  // it asks for a click on one of the hits
}

void counters(GridView& lessons) {
    const QStringList none(std::max(0, lessons.columns() - lesson_grid::first_counter));
    for (int row = lessons.fixed_rows(); row < lessons.rows(); ++row)
        lessons.set_row(row, none, lesson_grid::first_counter);
}

void totals(const std::array<QLabel*, 3>& sums) {
    for (QLabel* sum : sums) sum->setText(QStringLiteral("0"));
}

}  // namespace emptying
