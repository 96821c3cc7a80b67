#include "platform/print_form.h"

#include "platform/paper_text.h"

#include <QLabel>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace print_form {

namespace {

constexpr double smallest_points = 6;

QRectF place_of(const QWidget& control, const QWidget& form) {
    const QPoint corner = control.mapTo(&form, QPoint());
    return {twips(corner.x()), twips(corner.y()), twips(control.width()), twips(control.height())};
}

// Fonts come in steps of a twip; the next larger one would be too wide.
double font_not_above(double points) {
    constexpr double twips_a_point = 20;
    return std::floor(points * twips_a_point) / twips_a_point;
}

QString elided(const PrintSurface& paper, QString text, double width) {
    const QString sign(QChar(0x2026));
    while (!text.isEmpty() && paper.text_width(text + sign) > width) text.chop(1);
    return text + sign;
}

// Where a thing of this length begins in its place.
double aligned(double start, double room, double length, bool middle, bool end) {
    return start + (end ? room - length : middle ? (room - length) / 2 : 0);
}

void put_text(PrintSurface& paper, const QLabel& label, const QRectF& place) {
    const QFont told = label.font();
    PrintSurface::Font font{told.pointSizeF(), told.bold(), told.italic(), told.family()};
    paper.font(font);
    QString text = label.text();
    double width = paper.text_width(text);
    if (width > place.width()) {
        font.points = std::max(smallest_points, font_not_above(font.points * place.width() / width));
        paper.font(font);
        if (paper.text_width(text) > place.width() + 1) text = elided(paper, text, place.width());
        width = paper.text_width(text);
    }
    const Qt::Alignment side = label.alignment();
    paper.move_to(
        aligned(place.x(), place.width(), width, side & Qt::AlignHCenter, side & Qt::AlignRight),
        aligned(place.y(), place.height(), paper.line_height(), side & Qt::AlignVCenter, side & Qt::AlignBottom));
    paper.print(text);
}

void put_picture(PrintSurface& paper, const QLabel& label, const QRectF& place) {
    const QImage picture = label.pixmap(Qt::ReturnByValue).toImage();
    const QSizeF size = QSizeF(picture.size()).scaled(place.size(), Qt::KeepAspectRatio);
    const Qt::Alignment side = label.alignment();
    const double x = aligned(place.x(), place.width(), size.width(), side & Qt::AlignHCenter, side & Qt::AlignRight);
    const double y = aligned(place.y(), place.height(), size.height(), side & Qt::AlignVCenter, side & Qt::AlignBottom);
    paper.picture(x, y, size.width(), size.height(), picture);
}

void put_frame(PrintSurface& paper, const QFrame& frame, const QRectF& place) {
    if (frame.frameShape() == QFrame::Box) print_box(paper, place);
    if (frame.frameShape() == QFrame::HLine) paper.line(place.left(), place.top(), place.right(), place.top());
    if (frame.frameShape() == QFrame::VLine) paper.line(place.left(), place.top(), place.left(), place.bottom());
}

}  // namespace

void put(PrintSurface& paper, const QWidget& form) {
    const int width = paper.line_width();
    paper.line_width(1);
    const QRectF sheet(0, 0, twips(form.width()), twips(form.height()));
    for (const QFrame* control : form.findChildren<QFrame*>()) {
        const QRectF place = place_of(*control, form);
        if (!control->isVisibleTo(&form) || place.top() >= sheet.bottom()) continue;
        put_frame(paper, *control, place);
        const auto* label = qobject_cast<const QLabel*>(control);
        if (label == nullptr || place.height() <= 0) continue;
        if (!label->pixmap(Qt::ReturnByValue).isNull())
            put_picture(paper, *label, place);
        else if (!label->text().isEmpty())
            put_text(paper, *label, place);
    }
    paper.line_width(width);
}

}  // namespace print_form
