// Where the texts of an invoice stand on the printed form of a school: lines and columns, counted from 1.
#pragma once

#include "collections/invoice_amounts.h"
#include "session/context.h"

#include <array>
#include <vector>

struct InvoiceText {
    int column;
    QString text;
};
// From left to right, none over another.
using InvoiceLine = std::vector<InvoiceText>;

// The texts by field code; the code of the body and of the empty line have none.
inline constexpr int invoice_fields = 16;
using InvoiceTexts = std::array<QString, invoice_fields>;
namespace invoice_field {
inline constexpr int body = 10, net = 11, vat = 12, total = 13, words = 14, empty_line = 15;
}

// An item of data\Fatura.txt.
struct LayoutItem {
    int code;  // 0 to 15
    int line;
    int column;
    int second_column;  // of the body, for its amounts
};

// The layout of the session. Throws std::runtime_error in Turkish that names the file and the line for a field code
// that there is not, and for a column behind `last_column`.
std::vector<LayoutItem> invoice_layout(const SessionContext& session, int last_column);

// The lines from the first one on. Before an item as many empty lines are written as its line is below the current one,
// and the line end of an item itself does not count: each item adds a line, the body as one item. A form's layout file
// is made for that. Amounts end before the tenth column behind their own. A text whose column is passed already goes to
// the next line.
std::vector<InvoiceLine> invoice_lines(const std::vector<LayoutItem>& layout, const InvoiceTexts& texts,
                                       const std::vector<InvoiceRow>& rows);
