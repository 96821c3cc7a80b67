#include "session/panel_setup.h"

#include "forms/kurvo.h"
#include "platform/clock.h"
#include "platform/grid_view.h"

namespace {

void set_up_search(Kurvo& kurvo) {
    kurvo.TABLO_SBUL->set_widths({600, 1000, 3500, 1});  // the last holds the row in the list
    kurvo.TABLO_SBUL->set_rows(0);
}

void set_up_collections(Kurvo& kurvo) {
    kurvo.FTahsil_Tablo2->set_widths({250, 1000, 1000, 1200, 2600, 1, 1430});
    kurvo.FTahsil_Tablo2->set_rows(0);
    kurvo.FTahsil_TABLO4->set_widths({960, 1080, 3240, 960, 960});
    for (const int amount : {2, 6}) kurvo.FTahsil_Tablo2->set_alignment(amount, Qt::AlignRight);
    for (const int amount : {3, 4}) kurvo.FTahsil_TABLO4->set_alignment(amount, Qt::AlignRight);
    kurvo.FTahsil_TARIH->setDate(clock_source::today());
}

}  // namespace

void set_up_list(Kurvo& kurvo) {
    kurvo.TABLO->set_widths({500, 700, 2500});
    kurvo.TABLO->set_rows(0);
}

void set_up_panels(Kurvo& kurvo) {
    set_up_search(kurvo);
    if (!kurvo.CommandTAHSILAT->isHidden()) set_up_collections(kurvo);
}
