#include "fees/bus_service.h"

#include "platform/numbers.h"
#include "platform/screen_units.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned route_back = 32768;
constexpr unsigned route_fore = 0xFFFFFF;

}  // namespace

BusService::BusService(KurvoYeni& form, SessionContext& session) : form_(form), session_(session) {
    on(form_.CommandSERVISBUL, &QPushButton::clicked, this, [this] { CommandSERVISBUL_Click(); });
    on(form_.TABLO, &GridView::cell_clicked, this, [this] { TABLO_Click(); });
    on(form_.ServisCIK, &QPushButton::clicked, this, [this] { ServisCIK_Click(); });
}

void BusService::CommandSERVISBUL_Click() {
    const WaitCursor wait;
    form_.TABLO->hide();
    fill_stops();
    form_.TABLO->show();
    form_.FrameSERVIS->show();
    form_.TABLO->setFocus();
}

void BusService::fill_stops() {
    GridView& grid = *form_.TABLO;
    const GridView::Filling filling(grid);
    grid.clear();
    grid.set_rows(0);
    store::Database reference = store::OpenDatabase(session_.reference_file());
    store::Recordset servis = reference.OpenRecordset("Servis");
    servis.Index("SX");
    store::scan_all(servis, [&] {
        const int row = grid.rows();
        const bool is_route = servis["DRK"].number() == 0;
        const QString ack = servis["ACK"].text();
        grid.set_rows(row + 1);
        grid.set_row(row, {servis["SNO"].text(), is_route ? QString() : servis["DRK"].text(),
                           is_route ? ack : QString(ack).replace(u'#', u"  /  "_s)});
        if (is_route) mark_route(row);
    });
}

void BusService::mark_route(int row) {
    for (int column = 0; column < form_.TABLO->columns(); ++column) {
        form_.TABLO->set_bold(row, column, true);
        form_.TABLO->set_back_color(row, column, screen_units::color(route_back));
        form_.TABLO->set_fore_color(row, column, screen_units::color(route_fore));
    }
}

// A route's heading has no stop to pick.
void BusService::TABLO_Click() {
    const GridView& grid = *form_.TABLO;
    const int row = grid.row();
    if (row < 0 || numbers::val(grid.text(row, 1)) <= 0) return;
    form_.SERVISNO->setText(grid.text(row, 0));
    form_.DURAKNO->setText(grid.text(row, 1));
    ServisCIK_Click();
}

void BusService::ServisCIK_Click() {
    form_.FrameSERVIS->hide();
    form_.SERVISNO->setFocus();
}
