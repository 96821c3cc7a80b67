#include "fees/contract_paper.h"

#include "fees/amount_in_words.h"
#include "fees/note_wording.h"
#include "fees/plan_grid.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/paper_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Font = PrintSurface::Font;

const Font text_font{8, false, false, {}};
const Font title_font{10, true, false, {}};

constexpr double frame_left = 500, frame_right = 11000;
constexpr double full_sheet = 15000;     // no framed line begins below
constexpr double full_for_note = 13500;  // nor the closing note
constexpr double next_sheet_top = 800, next_frame_top = 700;
constexpr double label_left = 700, value_left = 1800, plan_left = 6000;
constexpr double amount_start = 7200;
constexpr double remark_left = 8300, remark_step = 200;
constexpr double gap = 100;  // to what stands at the right

QString joined(std::initializer_list<const QLineEdit*> boxes, const QString& between) {
    QStringList texts;
    for (const QLineEdit* box : boxes) texts << box->text();
    return texts.join(between);
}

}  // namespace

ContractPaper::ContractPaper(PrintSurface& paper, const KurvoYeni& form, QString date)
    : paper_(paper), form_(form), date_(std::move(date)) {}

void ContractPaper::print_at(double x, const QString& text) {
    paper_.move_to(x, y_);
    paper_.print(text);
}

void ContractPaper::open_frame(double top) {
    paper_.line(frame_left, top, frame_right, top);
    frame_top_ = top;
}

// A frame that follows at once needs no top line of its own.
void ContractPaper::close_frame(double bottom) {
    paper_.line(frame_left, frame_top_, frame_left, bottom);
    paper_.line(frame_right, frame_top_, frame_right, bottom);
    paper_.line(frame_left, bottom, frame_right, bottom);
    frame_top_ = bottom;
}

void ContractPaper::turn_full_sheet() {
    if (y_ <= full_sheet) return;
    const bool frame_is_begun = y_ > frame_top_;
    if (frame_is_begun) close_frame(y_ + 100);
    paper_.new_page();
    open_frame(next_frame_top);
    y_ = block_top_ = next_sheet_top;
}

void ContractPaper::heading(const QString& school) {
    const PaperText texts[] = {
        {200, 50, {14, true, true, {}}, school},
        {5000, 600, {12, true, false, {}}, u"ÖĞRENCİ SÖZLEŞMESİ"_s},
        {200, 600, {12, false, false, {}}, u"Sözleşme Tarihi : "_s + date_},
    };
    print_texts(paper_, 0, 0, texts);
    y_ = 1200;
}

void ContractPaper::clauses(const QStringList& lines) {
    constexpr double step = 220;
    paper_.font(title_font);
    print_at(4000, u"SÖZLEŞME HÜKÜMLERİ"_s);
    paper_.font(text_font);
    y_ += 400;
    open_frame(y_);
    for (QString line : lines) {
        const double x = line.startsWith(u' ') ? 1000 : 800;
        const QStringList pieces = broken_text(paper_, line.replace(u'\t', u"    "_s), frame_right - gap - x);
        for (const QString& piece : pieces.isEmpty() ? QStringList{QString()} : pieces) {
            turn_full_sheet();
            print_at(x, piece);
            y_ += step;
        }
    }
    close_frame(y_ + 500);
    y_ += 450;
}

void ContractPaper::student() {
    if (frame_top_ == 0) open_frame(y_ - 50);
    block_top_ = y_;
    turn_full_sheet();
    paper_.font(title_font);
    print_at(1000, u"ÖĞRENCİ BİLGİLERİ"_s);
    paper_.font(text_font);
    y_ += 300;

    const KurvoYeni& f = form_;
    const QString blank = u" "_s, blanks = u"  "_s, dash = u"-"_s;
    const std::pair<QString, QString> lines[] = {
        {u"Öğr.No - Tel"_s, joined({f.ONO, f.TEL}, u"  /   "_s)},
        {u"Adı Soyadı"_s, f.ADSOY->text()},
        {u"Sınıfı"_s, f.SNF->currentText()},
        {u"Okul/Dip.No"_s, f.GELOKUL->currentText()},
        {u"Zaman / Alan"_s, f.GRUP->currentText() + blanks + f.BOLUM->currentText()},
        {u"Nüfus Cüz.No"_s, f.NCSNO->text()},
        {u"Vatandaş.No"_s, f.VATNO->text()},
        {u"Doğ.Yer,Tar."_s, f.DOGYER->text() + blank + f.DOGTAR->text()},
        {u"İl-İlçe"_s, joined({f.IL, f.ILCE}, dash)},
        {u"Mahalle/Köy"_s, f.KOY->text()},
        {u"Cilt-Hane-Sıra"_s, joined({f.CILT, f.HANE, f.SIRA}, dash)},
        {u"Kayıt No"_s, f.KAYNO->text()},
        {u"Ver.Ned Yer Tar "_s, QStringList{f.VERNEDEN->currentText(), f.VERYER->text(), f.VERTAR->text()}.join(blank)},
        {u"Veli TC No"_s, f.VTCNO->text()},
        {u"Veli, GSM"_s, joined({f.VELI, f.VGSM}, blanks)},
        {u"Baba, GSM"_s, joined({f.BABA, f.BGSMTEL}, blanks)},
        {u"Anne, GSM"_s, joined({f.ANNE, f.AGSMTEL}, blanks)},
        {u"Ev Tel"_s, f.AEVTEL->text()},
        {u"Adres"_s, f.ADRES1->text()},
    };
    for (const auto& [label, value] : lines) student_line(label, u": "_s + value);
    for (const QString& piece :
         broken_text(paper_, joined({f.ADRES2, f.AILCE, f.AIL}, blank), plan_left - value_left - gap))
        student_line({}, piece);
    student_end_ = y_;
}

void ContractPaper::student_line(const QString& label, const QString& value) {
    turn_full_sheet();
    print_at(label_left, label);
    print_at(value_left, value);
    y_ += 200;
}

void ContractPaper::instalments_heading(const QString& title) {
    paper_.font(title_font);
    print_at(7000, title);
    y_ += 400;
    paper_.font_size(text_font.points);
    const std::pair<double, QString> headings[] = {
        {plan_left, u"Sno"_s}, {6500, u"Vade Tarihi"_s}, {7600, u"Tutar"_s}, {remark_left, u"Açıklama"_s}};
    for (const auto& [x, text] : headings) print_at(x, text);
    paper_.line(plan_left, y_ + 250, frame_right, y_ + 250);
    paper_.font(text_font);
    y_ += 350;
}

void ContractPaper::instalments() {
    y_ = block_top_;
    instalments_heading(u"Ö D E M E L E R"_s);
    const GridView& plan = *form_.TABLO2;
    for (int row = 0; row < plan.rows(); ++row) {
        const Money amount = numbers::whole(plan.text(row, plan_grid::tutar));
        sum_ += amount;
        if (amount > Money()) instalment(plan, row);
    }
    y_ = std::max(y_, student_end_) + 350;
    close_frame(y_);
}

void ContractPaper::instalment(const GridView& plan, int row) {
    if (y_ > full_sheet) {
        close_frame(std::max(y_, student_end_) + 350);
        student_end_ = 0;
        paper_.new_page();
        open_frame(next_frame_top);
        y_ = next_sheet_top;
        instalments_heading(u"Ö D E M E L E R  (Ek sayfa)"_s);
    }
    const QString amount = plan.text(row, plan_grid::tutar).trimmed();
    print_at(plan_left, plan.text(row, plan_grid::sno));
    print_at(6500, plan.text(row, plan_grid::vade));
    print_at(PrintSurface::right_aligned(amount_start, amount), amount);
    const QStringList remark = broken_text(paper_, plan.text(row, plan_grid::ack), frame_right - gap - remark_left);
    for (qsizetype i = 0; i < remark.size(); ++i) {
        if (i > 0) y_ += remark_step;
        print_at(remark_left, remark[i]);
    }
    y_ += 260;
}

void ContractPaper::closing_note() {
    const Money sum = Money::units(sum_.rounded());
    if (sum <= Money()) return;
    if (y_ > full_for_note) {
        paper_.new_page();
        y_ = next_sheet_top;
    }
    const KurvoYeni& f = form_;
    const Font caption{12, true, false, {}}, large{14, true, false, {}}, text{10, false, false, {}};
    const auto lines = note_wording::lines(f, {}, tutar_yaziya(sum.rounded()));
    const PaperText note[] = {
        {500, 30, caption, u"Ödenecek Tutar : "_s},
        {2800, 30, large, numbers::picture(sum) + u"  TL."_s},
        {500, 500, text, lines[0]},
        {500, 750, text, lines[1]},
        {500, 1000, text, lines[2]},
        {500, 1250, text, lines[3]},
        {500, 1500, text, lines[4]},
        {500, 1900, text,
         u"Ödeyecek : "_s + f.VELI->text() + u"        ( Tel: "_s + f.VTEL->text() + u"      GSM: "_s + f.VGSM->text() +
             u" )"_s},
        {8500, 2200, text, u"Tanzim Tarihi : "_s + date_},
    };
    print_texts(paper_, 0, y_, note);
    y_ += 2200;
    note_address(8500);
}

// At the left of what stands at `right`; a long one goes on under itself.
void ContractPaper::note_address(double right) {
    constexpr double left = 500, step = 250;
    const KurvoYeni& f = form_;
    const QString caption = u"Adresi      : "_s;
    double x = left;
    for (const QString& piece :
         broken_text(paper_, caption + joined({f.ADRES1, f.ADRES2, f.AILCE, f.AIL}, u" "_s), right - gap - left)) {
        print_at(x, piece);
        x = left + paper_.text_width(caption);
        y_ += step;
    }
}
