#include "overview/dossier_template.h"

#include "platform/numbers.h"
#include "platform/paper_text.h"
#include "platform/paths.h"
#include "platform/picture_file.h"
#include "platform/print_form.h"

using print_form::twips;

namespace {

constexpr int height_without_family = 2800;  // twips
constexpr double picture_dots_an_inch = 300, screen_dots_an_inch = 96;

QRectF place_on_sheet(const QWidget& control) {
    const QPoint corner = control.mapTo(control.window(), QPoint());
    return {twips(corner.x()), twips(corner.y()), twips(control.width()), twips(control.height())};
}

// A missing or damaged picture leaves the image empty: the dossier is printed without it.
void load_picture(QLabel& image, const QString& path) {
    image.clear();
    try {
        if (!paths::exists(path)) return;
        const QSizeF space = QSizeF(image.size()) * (picture_dots_an_inch / screen_dots_an_inch);
        image.setPixmap(QPixmap::fromImage(picture_within(path, space.toSize())));
    } catch (const std::exception&) {
        image.clear();
    }
}

}  // namespace

DossierTemplate::DossierTemplate(const Kurvo& kurvo, const SessionContext& session, bool with_family) {
    fill_school(session);
    fill_identity(kurvo);
    foto_yukle(session);
    form_.FrameNOT->setVisible(with_family);
    if (with_family)
        fill_family(kurvo);
    else
        form_.resize(form_.width(), static_cast<int>(height_without_family / print_form::twips_a_pixel));
}

void DossierTemplate::fill_school(const SessionContext& session) {
    const QString logo = session.dataRoot + QStringLiteral("logo.bmp");
    if (paths::exists(logo)) {
        form_.KURad->hide();
        logo_yukle(logo);
    } else {
        form_.Logo->resize(form_.Logo->width(), 0);
        form_.KURad->setText(session.schoolName);
    }
}

void DossierTemplate::fill_identity(const Kurvo& kurvo) {
    const auto behind_blank = [](const QLabel* label) { return u' ' + label->text(); };
    form_.ADSOY->setText(behind_blank(kurvo.LADSOYAD));
    form_.ONO->setText(u' ' + kurvo.LONO->text());
    form_.SINIF->setText(kurvo.LSNF->text());
    form_.ALAN->setText(behind_blank(kurvo.LBOLUM));
    form_.DIN->setText(behind_blank(kurvo.LDIN));
    form_.GRUP->setText(behind_blank(kurvo.LGRUP));
}

void DossierTemplate::fill_family(const Kurvo& kurvo) {
    form_.OkulAd->setText(kurvo.LGELOKUL->text());
    const std::pair<QLabel*, const QLabel*> family[] = {
        {form_.Vad, kurvo.LVELI},  {form_.Aad, kurvo.LANNE},  {form_.Bad, kurvo.LBABA},
        {form_.Vev, kurvo.LVTEL},  {form_.Aev, kurvo.LATEL},  {form_.Bev, kurvo.LBTEL},
        {form_.Vcep, kurvo.LVGSM}, {form_.Acep, kurvo.LAGSM}, {form_.Bcep, kurvo.LBGSM},
    };
    for (const auto& [label, of_card] : family) label->setText(QStringLiteral("  ") + of_card->text());

    const QTextDocument& note = *kurvo.FToplu_Text1->document();
    form_.RTB->setDocument(note.clone(form_.RTB));
    if (!note.toPlainText().trimmed().isEmpty())
        note_ = std::make_shared<const RichLines>(*form_.RTB->document(), twips(form_.RTB->width()));
}

void DossierTemplate::logo_yukle(const QString& path) {
    load_picture(*form_.Logo, path);
}

void DossierTemplate::foto_yukle(const SessionContext& session) {
    form_.Foto->clear();
    if (!session.photoFile.isEmpty()) load_picture(*form_.Foto, session.photo_path(session.photoFile));
}

int DossierTemplate::page() const {
    return static_cast<int>(numbers::val(form_.SAYFANO->text()));
}

void DossierTemplate::raise_page() {
    form_.SAYFANO->setText(QString::number(page() + 1));
}

void DossierTemplate::put_form(PrintSurface& paper) {
    print_form::put(paper, form_);
    if (!note_goes_on()) return;
    const QRectF box = place_on_sheet(*form_.RTB);
    put_note(paper, box.x(), box.y(), note_->fitting(note_done_, box.height()));
}

// Beneath the line with the page's number, in a frame of the same width as on the first page.
void DossierTemplate::put_rest_of_note(PrintSurface& paper) {
    constexpr double frame_top = 500, frame_bottom = 16300;
    const QRectF frame = place_on_sheet(*form_.FrameNOT), box = place_on_sheet(*form_.RTB);
    const double inset = box.left() - frame.left();
    const int end = note_->fitting(note_done_, frame_bottom - frame_top - 2 * inset);
    const double height = note_->height(note_done_, end) + 2 * inset;
    put_note(paper, box.x(), frame_top + inset, end);
    const int width = paper.line_width();
    paper.line_width(1);
    print_box(paper, {frame.left(), frame_top, frame.width(), height});
    paper.line_width(width);
}

void DossierTemplate::put_note(PrintSurface& paper, double x, double y, int end) {
    paper.rich_text(x, y, note_, note_done_, end);
    note_done_ = end;
}
