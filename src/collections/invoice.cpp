#include "collections/invoice.h"

#include "collections/invoice_layout.h"
#include "collections/printer_letters.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/print_surface.h"
#include "platform/text_file.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double column_width = 120;
constexpr double sheet_width = 11906, sheet_height = 16838;
constexpr int last_laser_column = static_cast<int>(sheet_width / column_width);
constexpr int last_matrix_column = 999;

InvoiceTexts invoice_texts(const Kurvo& kurvo, const PrintSettings& print, const InvoiceAmounts& amounts) {
    const auto letters = [&](const QString& text) { return harf_cevir(text, print); };
    return {letters(kurvo.LADSOYAD->text()),
            letters(kurvo.fADSOY->text()),
            letters(kurvo.LTCNO->text()),
            letters(kurvo.fADRES1->text()),
            letters(kurvo.fADRES2->text()),
            letters(kurvo.fILCE->text() + u' ' + kurvo.fIL->text()),
            letters(kurvo.fVD->text()),
            letters(kurvo.fVN->text()),
            kurvo.FTahsil_BNO->text(),
            dates::shown(kurvo.FTahsil_TARIH->date()),
            {},
            amounts.net,
            amounts.vat,
            amounts.total,
            amounts.words,
            {}};
}

std::vector<InvoiceLine> compose(const Kurvo& kurvo, const SessionContext& session, int last_column) {
    const InvoiceAmounts amounts = fatura_hesapla(*kurvo.FTahsil_TABLO4, session.print);
    return invoice_lines(invoice_layout(session, last_column), invoice_texts(kurvo, session.print, amounts),
                         amounts.rows);
}

void write_matrix(Kurvo& kurvo, const std::vector<InvoiceLine>& lines) {
    const QString file = u"c:\\qlm\\bak.txt"_s;
    QString text;
    for (const InvoiceLine& line : lines) {
        QString written;
        for (const InvoiceText& part : line) written = written.leftJustified(part.column - 1) + part.text;
        text += written + u"\r\n"_s;
    }
    text_file::write_bytes(file, printer_bytes(text));
    kurvo.status(u"Fatura %1 dosyasına yazıldı."_s.arg(file));
}

void print_copy(const QString& student, const std::vector<InvoiceLine>& lines) {
    PrintSurface paper(u"Fatura"_s, student);
    paper.font({10, false, false, u"Courier New"_s});
    const auto lines_a_sheet = static_cast<std::size_t>(sheet_height / paper.line_height());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0 && i % lines_a_sheet == 0) paper.new_page();
        for (const InvoiceText& part : lines[i]) {
            paper.set_x((part.column - 1) * column_width);
            paper.print(part.text);
        }
        paper.print_line({});
    }
    paper.end_document();
}

void print_laser(Kurvo& kurvo, const std::vector<InvoiceLine>& lines, const PrintSettings& print) {
    const int copies = static_cast<int>(numbers::val(print.KSAY));
    if (copies <= 0) return kurvo.status(u"Fatura basılmadı: fatura sayısı 0."_s);
    for (int copy = 0; copy < copies; ++copy) print_copy(kurvo.LONO->text(), lines);
}

}  // namespace

void fatura_yaz(Kurvo& kurvo, const SessionContext& session) {
    const bool laser = session.print.OptPrn == 1;
    const auto lines = compose(kurvo, session, laser ? last_laser_column : last_matrix_column);
    if (!laser) return write_matrix(kurvo, lines);
    if (lines.empty()) return kurvo.status(u"Fatura basılmadı: Fatura.txt dosyasında yerleşim yok."_s);
    print_laser(kurvo, lines, session.print);
}
