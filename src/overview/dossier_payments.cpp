#include "overview/dossier_sections.h"
#include "overview/dossier_table.h"
#include "platform/clock.h"
#include "platform/numbers.h"

namespace {

constexpr double amount_base = 3500, paid_base = 4600, open_base = 5700;

const DossierTable& table() {
    static const DossierTable payments{QStringLiteral("ÖDEMELER"),
                                       10500,
                                       {{QStringLiteral("Vade Tarihi"), 600, 0, Placing::left, 600},
                                        {QStringLiteral("Öd.Şekli"), 1800, 1, Placing::left, 1800},
                                        {QStringLiteral("Tutar"), 3000, 2, Placing::base_minus_length, amount_base},
                                        {QStringLiteral("Ödenen"), 4000, 3, Placing::base_minus_length, paid_base},
                                        {QStringLiteral("Kalan"), 5100, 4, Placing::base_minus_length, open_base},
                                        {QStringLiteral("Açıklama"), 6000, 5, Placing::left, 6000},
                                        {QStringLiteral("Kasa Fiş No"), 9000, 6, Placing::left, 9000}}};
    return payments;
}

void print_collection(DossierPages& pages, store::Recordset& tahsilat) {
    const QString paid = numbers::picture(Money::from_number(tahsilat["ODENEN"].required().number()));
    pages.paper().font(dossier_font(8));
    pages.print(800, dates::shown(tahsilat["TARIH"].text()));
    pages.print(placed(Placing::base_minus_length, 4700, paid), paid);
    pages.print(6000, tahsilat["BTIP"].text() + u' ' + tahsilat["BNO"].text());
    pages.print(9000, tahsilat["KASAFNO"].text());
    pages.next_line(230);
}

void print_totals(DossierPages& pages, const Kurvo& kurvo) {
    constexpr double below = 50;
    pages.rule(table().right_edge, 0);
    const auto print = [&](double x, const QString& text) {
        pages.paper().move_to(x, pages.y() + below);
        pages.paper().print(text);
    };
    print(DossierPages::left_edge, QStringLiteral("Toplam"));
    const std::pair<double, const QLabel*> totals[] = {
        {amount_base, kurvo.TTUTAR}, {paid_base, kurvo.TODENEN}, {open_base, kurvo.TBORC}};
    for (const auto& [base, total] : totals)
        print(placed(Placing::base_minus_length, base, total->text()), total->text());
}

}  // namespace

void dossier_sections::payments(DossierPages& pages, const Kurvo& kurvo, store::Database& term) {
    const GridView& grid = *kurvo.FToplu_Tablo2;
    const std::int64_t student = store::Value(kurvo.LONO->text()).whole_number();
    store::Recordset tahsilat = term.OpenRecordset("Tahsilat");
    tahsilat.Index("OVTX");
    open_section(pages, table());
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        print_row(pages, table(), grid, row);
        const QString due = dates::key_of_shown(grid.text(row, 0));
        store::scan_prefix(tahsilat, {student, due}, [&] { print_collection(pages, tahsilat); });
        pages.paper().font(dossier_font());
    }
    print_totals(pages, kurvo);
}
