#include "platform/print_surface.h"

#include "platform/paper_fonts.h"
#include "platform/paper_output.h"
#include "platform/rich_lines.h"

#include <utility>

namespace {

std::function<void(const PrintSurface::Document&)>& observer() {
    static std::function<void(const PrintSurface::Document&)> called;
    return called;
}

}  // namespace

PrintSurface::PrintSurface(QString paper, QString student)
    : fonts_(std::make_shared<PaperFonts>()), paper_(std::move(paper)), student_(std::move(student)) {}

void PrintSurface::print(const QString& text) {
    if (text.isEmpty()) return;
    Operation operation;
    operation.kind = Operation::Kind::text;
    operation.x = x_;
    operation.y = y_;
    operation.text = text;
    operation.font = font_;
    pages_.back().push_back(std::move(operation));
    x_ += text_width(text);
}

void PrintSurface::print_line(const QString& text) {
    print(text);
    move_to(0, y_ + line_height());
}

void PrintSurface::line(double x1, double y1, double x2, double y2) {
    Operation operation;
    operation.kind = Operation::Kind::line;
    operation.x = x1;
    operation.y = y1;
    operation.x2 = x2;
    operation.y2 = y2;
    operation.width = width_;
    pages_.back().push_back(std::move(operation));
}

void PrintSurface::picture(double x, double y, double width, double height, const QImage& image) {
    Operation operation;
    operation.kind = Operation::Kind::picture;
    operation.x = x;
    operation.y = y;
    operation.x2 = x + width;
    operation.y2 = y + height;
    operation.picture = image;
    pages_.back().push_back(std::move(operation));
}

void PrintSurface::rich_text(double x, double y, std::shared_ptr<const RichLines> lines, int first, int end) {
    Operation operation;
    operation.kind = Operation::Kind::rich_text;
    operation.x = x;
    operation.y = y;
    operation.text = lines->text(first, end);
    operation.rich = std::move(lines);
    operation.first_line = first;
    operation.end_line = end;
    pages_.back().push_back(std::move(operation));
}

void PrintSurface::new_page() {
    pages_.emplace_back();
    move_to(0, 0);
}

PrintSurface::Document PrintSurface::end_document() {
    Document document{paper_, student_, std::move(pages_), {}};
    pages_ = std::vector<Page>(1);
    move_to(0, 0);
    document.file = paper_output::send(document, *fonts_);
    if (observer()) observer()(document);
    return document;
}

double PrintSurface::text_width(const QString& text) const {
    return fonts_->face(font_).metrics.horizontalAdvance(text);
}

double PrintSurface::line_height() const {
    return fonts_->face(font_).metrics.height();
}

double PrintSurface::right_aligned(double field_start, const QString& text) {
    constexpr int characters = 13;
    constexpr int twips_a_character = 90;
    return field_start + static_cast<double>((characters - text.trimmed().size()) * twips_a_character);
}

void PrintSurface::set_observer(std::function<void(const Document&)> called) {
    observer() = std::move(called);
}
