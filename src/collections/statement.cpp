#include "collections/statement.h"

#include "fees/payment_forms.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/screen_units.h"

#include <algorithm>

namespace {

constexpr unsigned paid_color = 0xC0FFC0;
constexpr unsigned overdue_color = 0xC0C0FF;

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

void add_payment(Instalment& instalment, store::Recordset& tahsilat) {
    const QString slip = tahsilat["KASAFNO"].text();
    if (!slip.trimmed().isEmpty()) instalment.slips += slip + QStringLiteral(", ");
    const QString date = dates::shown(tahsilat["TARIH"].text()).replace(u'.', u'/');
    instalment.payments += date + u'-' + tahsilat["ODENEN"].text() + QStringLiteral(", ");
}

}  // namespace

void Statement::odeme_durumu() {
    if (session_.collectionsAllowed == 0) return;
    kurvo_.TARIH->setDate(clock_source::today());
    const std::vector<Instalment> instalments = read_instalments();
    show_all(instalments);
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
    store::Recordset tahsilat = session_.termDb.OpenRecordset("Tahsilat");
    tahsilat.Index("OVTX");
    store::scan_prefix(tahsilat, {student}, [&] {
        const auto paid = std::ranges::find(instalments, tahsilat["VADE"].text(), &Instalment::vade);
        if (paid != instalments.end()) add_payment(*paid, tahsilat);
    });
    return instalments;
}

void Statement::show_all(const std::vector<Instalment>& instalments) {
    GridView& grid = *kurvo_.FToplu_Tablo2;
    const GridView::Filling filling(grid);
    grid.set_rows(1);
    grid.set_rows(static_cast<int>(instalments.size()) + 1);
    const QString today = kurvo_.TARIH->key();
    int row = 0;
    for (const Instalment& instalment : instalments) {
        grid.set_row(++row, {dates::shown(instalment.vade), instalment.odsek, numbers::picture(instalment.tutar),
                             numbers::picture(instalment.odenen), numbers::picture(instalment.kalan()), instalment.ack,
                             instalment.slips, instalment.payments});
        if (instalment.kalan() == Money())
            grid.set_row_back_color(row, screen_units::color(paid_color));
        else if (instalment.vade < today)
            grid.set_row_back_color(row, screen_units::color(overdue_color));
    }
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
    kurvo_.FToplu_TFARK->setText(numbers::picture(numbers::whole(kurvo_.FToplu_KTUTAR->text()) - tutar));
}
