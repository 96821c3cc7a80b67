#include "overview/dossier_pages.h"

namespace {

constexpr double full_page = 15000, full_for_section = 14000;
constexpr double page_top = 500, sheet_end = 16340;
constexpr double head_x = 8000, head_y = 100;

}  // namespace

DossierPages::DossierPages(PrintSurface& paper, DossierTemplate& first, QString name, double y)
    : paper_(paper), template_(first), name_(std::move(name)), y_(y) {
    paper_.font(dossier_font());
}

void DossierPages::print(double x, const QString& text) {
    paper_.move_to(x, y_);
    paper_.print(text);
}

void DossierPages::rule(double right, double below) {
    paper_.line(left_edge, y_ + below, right, y_ + below);
}

void DossierPages::next_line(double step) {
    y_ += step;
    if (y_ > full_page) page_end();
}

void DossierPages::begin_section() {
    constexpr double gap = 800;
    y_ += gap;
    if (y_ > full_for_section) page_end();
}

void DossierPages::keep_together(double height) {
    if (y_ + height > sheet_end) page_end();
}

void DossierPages::finish() {
    if (sablon_bekliyor_) put_template();
}

// The template fills a page of its own or stands above what is printed on the first one already.
void DossierPages::page_end() {
    if (sablon_bekliyor_) put_template();
    new_sheet();
    paper_.font(dossier_font());
    y_ = page_top;
}

// A note that is longer than its frame goes on over pages of its own.
void DossierPages::put_template() {
    sablon_bekliyor_ = false;
    template_.put_form(paper_);
    while (template_.note_goes_on()) {
        new_sheet();
        template_.put_rest_of_note(paper_);
    }
}

void DossierPages::new_sheet() {
    paper_.new_page();
    template_.raise_page();
    paper_.font(dossier_font(8));
    paper_.move_to(head_x, head_y);
    paper_.print(QStringLiteral("Sayfa : %1  ").arg(template_.page()) + name_);
}
