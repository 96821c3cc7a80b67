// What an invoice says of a collection: its rows, what of it is value added tax, and the sum in words.
#pragma once

#include "platform/money.h"
#include "session/print_settings.h"

#include <vector>

class GridView;

struct VatSplit {
    Money net, vat;
};

// Of a whole amount; `percent` counts as 0 to 100. With the tax included the net part is cut to the hundredth and the
// tax is the rest. With the tax on top the amount is the net part, and the tax is rounded up in all but the last tenth
// of a hundredth.
VatSplit split_vat(Money amount, Money percent, bool included);

struct InvoiceRow {
    QString text;    // word of the payment form and remark, in the printer's letters
    QString amount;  // as it stands in the grid
};

struct InvoiceAmounts {
    std::vector<InvoiceRow> rows;
    QString net, vat, total;  // pictures
    QString words;            // in the printer's letters
};

// Of the body rows of FTahsil_TABLO4. The words are made from the plain digits of the total: where it has decimals,
// their point is read as a place like the digits are.
InvoiceAmounts fatura_hesapla(const GridView& chosen, const PrintSettings& print);
