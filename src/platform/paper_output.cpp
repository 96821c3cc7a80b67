#include "platform/paper_output.h"

#include "platform/clock.h"
#include "platform/paper_fonts.h"
#include "platform/paths.h"
#include "platform/refusal.h"
#include "platform/rich_lines.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace paper_output {

namespace {

using Operation = PrintSurface::Operation;
constexpr int twips_an_inch = 1440;
constexpr double pen_unit = 5;  // twips

QString title_of(const PrintSurface::Document& document) {
    return (document.paper + u' ' + document.student).trimmed();
}

// Paints the operations of one document; a font is set only where it changes.
class Brush {
public:
    Brush(QPainter& painter, PaperFonts& fonts) : painter_(painter), fonts_(fonts) {}

    void paint(const Operation& operation) {
        const QPointF begin(operation.x, operation.y);
        const QPointF end(operation.x2, operation.y2);
        switch (operation.kind) {
            case Operation::Kind::text:
                paint_text(begin, operation);
                break;
            case Operation::Kind::line:
                painter_.setPen(QPen(Qt::black, operation.width * pen_unit, Qt::SolidLine, Qt::FlatCap));
                painter_.drawLine(begin, end);
                break;
            case Operation::Kind::picture:
                painter_.drawImage(QRectF(begin, end), operation.picture);
                break;
            case Operation::Kind::rich_text:
                operation.rich->draw(painter_, begin, operation.first_line, operation.end_line);
                break;
        }
    }

private:
    void paint_text(QPointF at, const Operation& operation) {
        const PaperFonts::Face& face = fonts_.face(operation.font);
        if (face_ != &face) painter_.setFont(face.font);
        face_ = &face;
        painter_.drawText(at + QPointF(0, face.metrics.ascent()), operation.text);
    }

    QPainter& painter_;
    PaperFonts& fonts_;
    const PaperFonts::Face* face_ = nullptr;
};

// False when the device refuses to begin or to go on.
bool render(const PrintSurface::Document& document, QPagedPaintDevice& device, PaperFonts& fonts) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    // A printer of another system may not know 1440 dots to the inch.
    painter.scale(device.logicalDpiX() / double(twips_an_inch), device.logicalDpiY() / double(twips_an_inch));
    Brush brush(painter, fonts);
    bool first = true;
    for (const PrintSurface::Page& page : document.pages) {
        if (!std::exchange(first, false) && !device.newPage()) return false;
        for (const Operation& operation : page) brush.paint(operation);
    }
    return painter.end();
}

const QPageLayout& sheet() {
    static const QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    return layout;
}

// Qt passes over the answer of the printing queue, which knows best whether it took the job. The queue's library is
// loaded by Qt's printing already and keeps the answer to the last request of this thread.
bool queue_refused() {
#ifdef Q_OS_UNIX
    constexpr int first_error = 0x400;  // of the printing protocol's status codes
    using LastError = int (*)();
    const auto last_error = reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    return last_error && last_error() >= first_error;
#else
    return false;
#endif
}

void send_to_printer(const PrintSurface::Document& document, const QPrinterInfo& info, PaperFonts& fonts) {
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setResolution(twips_an_inch);
    printer.setFullPage(true);
    printer.setPageLayout(sheet());
    printer.setFullPage(true);
    printer.setDocName(title_of(document));
    printer.setCreator(QStringLiteral("Kurvo"));
    if (!render(document, printer, fonts) || printer.printerState() == QPrinter::Error || queue_refused())
        refuse(QStringLiteral("\"%1\" yazıcısı belgeyi kabul etmedi.").arg(info.printerName()));
}

QByteArray pdf_of(const PrintSurface::Document& document, PaperFonts& fonts) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(twips_an_inch);
    writer.setPageLayout(sheet());
    writer.setTitle(title_of(document));
    writer.setCreator(QStringLiteral("Kurvo"));
    if (!render(document, writer, fonts)) refuse(QStringLiteral("Belge PDF olarak hazırlanamadı."));
    return buffer.data();
}

// A part of a file name that every system takes.
QString safe(const QString& text) {
    QString name = text.trimmed();
    for (QChar& letter : name)
        if (!letter.isLetterOrNumber() && letter != u'-') letter = u'_';
    return name.left(60);
}

// Written beside and renamed, so that a folder that is watched never shows half a paper.
QString write_pdf(const PrintSurface::Document& document, const QString& folder, PaperFonts& fonts) {
    const QByteArray bytes = pdf_of(document, fonts);
    const QString native_folder = paths::native(folder);
    const auto refuse_folder = [&] { refuse(QStringLiteral("Belge \"%1\" klasörüne yazılamadı.").arg(folder)); };
    if (!QDir().mkpath(native_folder)) refuse_folder();

    QTemporaryFile beside(native_folder + QStringLiteral("/.kurvo-XXXXXX.tmp"));
    if (!beside.open() || beside.write(bytes) != bytes.size() || !beside.flush()) refuse_folder();
    beside.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    beside.close();

    const QString stem = native_folder + u'/' + safe(document.paper) + u'_' + safe(document.student) + u'_' +
                         clock_source::now().toString(QStringLiteral("yyyyMMdd-HHmmss")) + u'_';
    for (int counter = 1; counter <= 9999; ++counter) {
        const QString file = stem + QString::number(counter) + QStringLiteral(".pdf");
        if (QFile::exists(file) || !beside.rename(file)) {  // rename never replaces a file
            if (QFile::exists(file)) continue;
            break;
        }
        beside.setAutoRemove(false);
        return file;
    }
    refuse_folder();
    return {};
}

}  // namespace

QString send(const PrintSurface::Document& document, PaperFonts& fonts) {
    const QString told = qEnvironmentVariable("KURVO_PRINTER");
    const QString to_file = QStringLiteral("pdf:");
    if (told.startsWith(to_file)) return write_pdf(document, told.mid(to_file.size()), fonts);

    const QPrinterInfo printer = told.isEmpty() ? QPrinterInfo::defaultPrinter() : QPrinterInfo::printerInfo(told);
    if (!printer.isNull()) {
        send_to_printer(document, printer, fonts);
        return {};
    }
    if (!told.isEmpty()) refuse(QStringLiteral("\"%1\" adlı yazıcı bulunamadı.").arg(told));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return write_pdf(document, documents + QStringLiteral("/Kurvo"), fonts);
}

}  // namespace paper_output
