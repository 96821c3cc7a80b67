#include "collections/receipt.h"

#include "collections/grids.h"
#include "fees/amount_in_words.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paper_text.h"

#include <array>

namespace {

constexpr std::array copy_tops{450.0, 8800.0};
constexpr double left_edge = 1000, right_edge = 10500;
constexpr double amount_start = 4100;

// One copy of the receipt; `y_` goes down as it is written.
class Copy {
public:
    Copy(PrintSurface& paper, double top, const Kurvo& kurvo) : paper_(paper), kurvo_(kurvo), y_(top) {}

    void heading(const QString& school);
    void rows();
    void total(Money alinan);
    void remainder();

private:
    void print_at(double x, const QString& text);
    void print_amount(const QString& text);
    void print_bold(const QString& text);

    PrintSurface& paper_;
    const Kurvo& kurvo_;
    double y_;
};

void Copy::print_at(double x, const QString& text) {
    paper_.move_to(x, y_);
    paper_.print(text);
}

void Copy::print_amount(const QString& text) {
    const QString trimmed = text.trimmed();
    print_at(PrintSurface::right_aligned(amount_start, trimmed), trimmed);
}

void Copy::print_bold(const QString& text) {
    paper_.bold(true);
    paper_.print(text);
    paper_.bold(false);
}

void Copy::heading(const QString& school) {
    const std::array texts{
        PaperText{500, 0, {14, true, true, {}}, school},
        PaperText{4000, 600, {12, true, false, {}}, QStringLiteral("TAHSİLAT MAKBUZU")},
        PaperText{8500,
                  100,
                  {10, false, false, {}},
                  QStringLiteral("Tarih            :  ") + dates::shown(kurvo_.FTahsil_TARIH->date())},
        PaperText{8500, 400, {10, false, false, {}}, QStringLiteral("Makbuz No :  ") + kurvo_.FTahsil_BNO->text()},
        PaperText{1000, 1400, {12, false, false, {}}, QStringLiteral("Öğrenci No : ") + kurvo_.LONO->text()},
        PaperText{1000, 1750, {12, false, false, {}}, QStringLiteral("Adı Soyadı   : ") + kurvo_.LADSOYAD->text()},
        PaperText{1000, 2300, {10, true, false, {}}, QStringLiteral("Vade Tarihi")},
        PaperText{2500, 2300, {10, true, false, {}}, QStringLiteral("Şekli")},
        PaperText{4700, 2300, {10, true, false, {}}, QStringLiteral("Tutar")},
        PaperText{6000, 2300, {10, true, false, {}}, QStringLiteral("Açıklama")},
    };
    print_texts(paper_, 0, y_, texts);
    paper_.line(left_edge, y_ + 2550, right_edge, y_ + 2550);
    paper_.bold(false);
    y_ += 2700;
}

void Copy::rows() {
    const GridView& grid = *kurvo_.FTahsil_TABLO4;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        print_at(left_edge, grid.text(row, chosen_grid::vade));
        print_at(2500, grid.text(row, chosen_grid::odsek));
        print_amount(grid.text(row, chosen_grid::odenen));
        print_at(6000, grid.text(row, chosen_grid::ack));
        y_ += 250;
    }
    y_ += 50;
    paper_.line(left_edge, y_ + 100, right_edge, y_ + 100);
    y_ += 250;
}

void Copy::total(Money alinan) {
    print_at(left_edge, QStringLiteral("Toplam Alınan :"));
    print_amount(numbers::picture(alinan));
    y_ += 700;
    paper_.move_to(left_edge, y_);
    print_bold(tutar_yaziya(alinan.rounded()));
    paper_.print(QStringLiteral("    ") + kurvo_.ComboKASATIP->currentText() + QStringLiteral("  Alınmıştır."));
    y_ += 600;
}

void Copy::remainder() {
    const GridView& open = *kurvo_.FTahsil_Tablo2;
    paper_.move_to(left_edge, y_);
    if (open.rows() == 0) {
        paper_.italic(true);
        paper_.print(QStringLiteral("Borcunuz bitmiştir,  teşekkür ederiz."));
        paper_.italic(false);
        return;
    }
    paper_.print(QStringLiteral("Kalan borcunuz   "));
    print_bold(QString::number(open.rows()));
    paper_.print(QStringLiteral("   taksit olup,  toplam   "));
    print_bold(numbers::picture(kurvo_.TBORC->text()));
    paper_.print_line(QStringLiteral("  TL'dir."));
    paper_.set_x(left_edge);
    paper_.print(QStringLiteral("En yakın ödeme tarihiniz : "));
    print_bold(open.text(0, open_grid::vade));
}

}  // namespace

void makbuz_yaz(const Kurvo& kurvo, const SessionContext& session, Money alinan) {
    PrintSurface paper(QStringLiteral("Makbuz"), kurvo.LONO->text());
    paper.line_width(session.line_width());
    const QString school = kurvo.CheckKad->isChecked() ? session.schoolName : QString();
    for (const double top : copy_tops) {
        Copy copy(paper, top, kurvo);
        copy.heading(school);
        copy.rows();
        copy.total(alinan);
        copy.remainder();
    }
    paper.end_document();
}
