#include "collections/invoice_layout.h"

#include "platform/numbers.h"
#include "session/item_file.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int amount_width = 10;

// Writes lines as a printer that knows columns: it cannot go back on a line.
class ColumnWriter {
public:
    void empty_lines(int count) {
        for (; count > 0; --count) lines_.emplace_back();
    }
    void print(const std::vector<InvoiceText>& texts) {
        InvoiceLine line;
        int position = 1;
        for (const InvoiceText& text : texts) {
            const int column = std::max(text.column, 1);
            if (column < position) lines_.push_back(std::exchange(line, {}));
            line.push_back({column, text.text});
            position = column + static_cast<int>(text.text.size());
        }
        lines_.push_back(line);
    }
    std::vector<InvoiceLine> lines() { return std::move(lines_); }

private:
    std::vector<InvoiceLine> lines_;
};

InvoiceText amount_at(int column, const QString& amount) {
    return {column + amount_width - static_cast<int>(amount.size()), amount};
}

InvoiceText placed(const LayoutItem& item, const QString& text) {
    const bool is_amount = item.code >= invoice_field::net && item.code <= invoice_field::total;
    return is_amount ? amount_at(item.column, text) : InvoiceText{item.column, text};
}

bool is_field(const QString& code) {
    const double number = numbers::val(code);
    return !code.isEmpty() && code[0].isDigit() && number < invoice_fields;
}

}  // namespace

std::vector<LayoutItem> invoice_layout(const SessionContext& session, int last_column) {
    const PrintSettings& print = session.print;
    std::vector<LayoutItem> layout;
    for (std::size_t i = 0; i < static_cast<std::size_t>(print.layoutCount); ++i) {
        const auto refuse = [&](const QString& why) {
            refuse_line(session.data_file(QStringLiteral("Fatura.txt")), print.layoutLine[i], why);
        };
        const auto number = [](const QString& text) { return static_cast<int>(numbers::val(text)); };
        const QString code = print.flbl[i].mid(1).trimmed();
        if (!is_field(code))
            refuse(QStringLiteral("alan \"%1\" 0 ile %2 arasında bir sayı olmalı.").arg(code).arg(invoice_fields - 1));
        const LayoutItem item{number(code), number(print.yy[i]), number(print.xx[i]), number(print.aa[i])};
        const bool is_total = item.code >= invoice_field::net && item.code <= invoice_field::total;
        const int right = item.code == invoice_field::body
                              ? std::max(item.column, item.second_column + amount_width - 1)
                              : item.column + (is_total ? amount_width - 1 : 0);
        if (right > last_column)
            refuse(QStringLiteral("%1. sütun kağıda sığmıyor; son sütun %2.").arg(right).arg(last_column));
        layout.push_back(item);
    }
    return layout;
}

std::vector<InvoiceLine> invoice_lines(const std::vector<LayoutItem>& layout, const InvoiceTexts& texts,
                                       const std::vector<InvoiceRow>& rows) {
    ColumnWriter writer;
    int line = 1;
    for (const LayoutItem& item : layout) {
        writer.empty_lines(item.line - line);
        line = item.line;
        if (item.code == invoice_field::empty_line) {
            writer.empty_lines(1);
        } else if (item.code == invoice_field::body) {
            for (const InvoiceRow& row : rows)
                writer.print({{item.column, row.text}, amount_at(item.second_column, row.amount)});
            line += static_cast<int>(rows.size()) - 1;
        } else {
            writer.print({placed(item, texts[static_cast<std::size_t>(item.code)])});
        }
    }
    return writer.lines();
}
