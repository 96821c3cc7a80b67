// Where a dossier that is being printed stands.
#pragma once

#include "overview/dossier_template.h"
#include "platform/print_surface.h"

// The paper font in a size of points; 10 is that of a section's rows.
inline PrintSurface::Font dossier_font(double points = 10, bool bold = false) {
    return {points, bold, false, {}};
}

// The running line and the page ends. The template waits for the first page end, or for the dossier's end, and comes
// to the top of the first page. Positions are twips.
class DossierPages {
public:
    // `name` stands at the head of each page behind the first; the sections begin below `y`. All must outlive it.
    DossierPages(PrintSurface& paper, DossierTemplate& first, QString name, double y);

    PrintSurface& paper() { return paper_; }
    double y() const { return y_; }
    void print(double x, const QString& text);  // at the running line
    void rule(double right, double below);      // from the left edge, `below` the running line

    void down(double step) { y_ += step; }  // on this page, however full it is
    void next_line(double step);            // on the next page where this one is full
    void begin_section();                   // likewise, with room for a heading
    // To the next page where something of this height would not stand whole on the sheet.
    void keep_together(double height);
    // The template goes out if it has not yet. Nothing may be printed after it.
    void finish();

    static constexpr double left_edge = 600;

private:
    void page_end();
    void put_template();
    void new_sheet();

    PrintSurface& paper_;
    DossierTemplate& template_;
    QString name_;
    double y_;
    bool sablon_bekliyor_ = true;
};
