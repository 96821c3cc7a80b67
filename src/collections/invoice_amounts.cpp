#include "collections/invoice_amounts.h"

#include "collections/grids.h"
#include "collections/printer_letters.h"
#include "fees/amount_in_words.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"

#include <algorithm>

namespace {

constexpr std::int64_t hundredth = Money::scale / 100;  // in parts

// The whole part of (value * factor + addend) / divisor, without a product that overflows.
std::int64_t scaled(std::int64_t value, std::int64_t factor, std::int64_t addend, std::int64_t divisor) {
    return value / divisor * factor + (value % divisor * factor + addend) / divisor;
}

}  // namespace

VatSplit split_vat(Money amount, Money percent, bool included) {
    const Money whole = std::clamp(percent, Money(), Money::units(100));
    const std::int64_t units = amount.truncated();
    if (included) {
        const std::int64_t net = scaled(units, 10000 * Money::scale, 0, (whole + Money::units(100)).parts());
        const Money net_amount = Money::of_parts(net * hundredth);
        return {net_amount, amount - net_amount};
    }
    constexpr std::int64_t nine_tenths = Money::scale * 9 / 10;
    return {amount, Money::of_parts(scaled(units, whole.parts(), nine_tenths, Money::scale) * hundredth)};
}

InvoiceAmounts fatura_hesapla(const GridView& chosen, const PrintSettings& print) {
    InvoiceAmounts invoice;
    Money net, vat;
    for (int row = chosen.fixed_rows(); row < chosen.rows(); ++row) {
        const QString text =
            chosen.text(row, chosen_grid::odsek) + QStringLiteral("  ") + chosen.text(row, chosen_grid::ack);
        const QString amount = chosen.text(row, chosen_grid::odenen);
        invoice.rows.push_back({harf_cevir(text, print), amount});
        const VatSplit split = split_vat(numbers::whole(amount), numbers::money(print.KDVZ), print.KDVc == 1);
        net += split.net;
        vat += split.vat;
    }
    invoice.net = numbers::picture(net);
    invoice.vat = numbers::picture(vat);
    invoice.total = numbers::picture(net + vat);
    invoice.words = harf_cevir(tutar_yaziya(numbers::plain(net + vat)), print);
    return invoice;
}
