// A paper: a list of operations per page, rendered to the printer at the end of the document.
#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class PaperFonts;
class RichLines;

// Positions are twips (1440 to the inch) from the page's top left corner; X and Y are the top left of a text.
// Nothing reaches the printer before end_document(); a surface destroyed before it prints nothing.
class PrintSurface {
public:
    struct Font {
        double points = 10;
        bool bold = false;
        bool italic = false;
        QString family;  // empty: the paper font, Liberation Sans Narrow or Arial Narrow
        bool operator==(const Font&) const = default;
    };
    struct Operation {
        enum class Kind { text, line, picture, rich_text } kind = Kind::text;
        double x = 0, y = 0;    // top left, or the line's first point
        double x2 = 0, y2 = 0;  // the line's second point, or the picture's lower right corner
        QString text;           // of a rich text the letters alone, a line feed behind each line but the last
        Font font;
        int width = 1;  // pen width of a line, in quarters of a point
        QImage picture;
        std::shared_ptr<const RichLines> rich;  // a rich text's lines from first_line to before end_line
        int first_line = 0, end_line = 0;
    };
    using Page = std::vector<Operation>;
    struct Document {
        QString paper;
        QString student;
        std::vector<Page> pages;
        QString file;  // the native path of the PDF, empty when it went to a printer
    };

    // The paper's name and the student's number name the PDF.
    PrintSurface(QString paper, QString student);

    // The whole font, or the properties set one by one.
    void font(const Font& font) { font_ = font; }
    const Font& font() const { return font_; }
    void font_size(double points) { font_.points = points; }
    void bold(bool on) { font_.bold = on; }
    void italic(bool on) { font_.italic = on; }
    void line_width(int width) { width_ = width; }
    int line_width() const { return width_; }

    void set_x(double twips) { x_ = twips; }
    void move_to(double x, double y) { x_ = x, y_ = y; }
    double x() const { return x_; }
    double y() const { return y_; }

    void print(const QString& text);       // leaves the position behind the text
    void print_line(const QString& text);  // then goes to the next line at the left edge
    void line(double x1, double y1, double x2, double y2);
    void picture(double x, double y, double width, double height, const QImage& image);
    // Lines of a rich text with their own fonts and colours; the position stays.
    void rich_text(double x, double y, std::shared_ptr<const RichLines> lines, int first, int end);

    void new_page();  // the position goes to the top left corner
    // Sends the document to the printer of $KURVO_PRINTER ("pdf:FOLDER" for files, or a printer's name), else to
    // the default printer, else to a PDF in the folder "Kurvo" of the user's documents. Returns it as it was sent;
    // the surface is empty then. Throws std::runtime_error in Turkish when printer or file cannot be written.
    Document end_document();

    double text_width(const QString& text) const;  // twips, in the current font
    double line_height() const;                    // twips, in the current font

    // Where a right-aligned amount in a field of 13 characters begins: (13 - length of the trimmed text) * 90
    // twips behind the field's start.
    static double right_aligned(double field_start, const QString& text);

    // Called with each document that was sent (the status line; tests).
    static void set_observer(std::function<void(const Document&)> observer);

private:
    std::shared_ptr<PaperFonts> fonts_;
    QString paper_, student_;
    std::vector<Page> pages_{1};
    Font font_;
    double x_ = 0, y_ = 0;
    int width_ = 1;
};
