#include "collections/statement.h"

#include "fees/payment_forms.h"
#include "platform/clock.h"
#include "platform/numbers.h"

namespace {

Money amount(store::Recordset& records, std::string_view field) {
    return Money::from_number(records[field].required().number());
}

Instalment current_instalment(store::Recordset& odeme) {
    Instalment instalment;
    instalment.vade = odeme["VADE"].text();
    instalment.tutar = amount(odeme, "TUTAR");
    instalment.odenen = amount(odeme, "ODENEN");
    instalment.odsek = payment_form(odeme["ODSEK"].value());
    instalment.ack = odeme["ACK"].text();
    instalment.cyer = odeme["CYER"].text();
    return instalment;
}

}  // namespace

void Statement::odeme_durumu() {
    if (session_.collectionsAllowed == 0) return;
    const std::vector<Instalment> instalments = read_instalments();
    show_open(instalments);
    show_totals(instalments);
    // Comes last: its change handler compares with the new debt and walks the new rows.
    kurvo_.ODENEN->clear();
}

std::vector<Instalment> Statement::read_instalments() {
    std::vector<Instalment> instalments;
    store::Recordset odeme = session_.termDb.OpenRecordset("Odeme");
    odeme.Index("OVX");
    const std::int64_t student = store::Value(kurvo_.LONO->text()).whole_number();
    store::scan_prefix(odeme, {student}, [&] { instalments.push_back(current_instalment(odeme)); });
    return instalments;
}

void Statement::show_open(const std::vector<Instalment>& instalments) {
    GridView& grid = *kurvo_.FTahsil_Tablo2;
    const GridView::Filling filling(grid);
    grid.clear();
    grid.set_rows(0);
    if (kurvo_.CommandTAHSILAT->isHidden()) return;
    for (const Instalment& instalment : instalments) {
        if (instalment.kalan() <= Money()) continue;
        const int row = grid.rows();
        grid.set_rows(row + 1);
        grid.set_row(row, {QStringLiteral(" "), dates::shown(instalment.vade), numbers::picture(instalment.kalan()),
                           instalment.odsek, instalment.ack, instalment.cyer});
    }
}

void Statement::show_totals(const std::vector<Instalment>& instalments) {
    Money tutar, odenen;
    for (const Instalment& instalment : instalments) {
        tutar += instalment.tutar;
        odenen += instalment.odenen;
    }
    kurvo_.TTUTAR->setText(numbers::plain(tutar));
    kurvo_.TODENEN->setText(numbers::plain(odenen));
    // A student without instalments shows "0", one who owes nothing the picture of 0.
    kurvo_.TBORC->setText(instalments.empty() ? QStringLiteral("0") : numbers::picture(tutar - odenen));
}
