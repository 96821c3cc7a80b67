// A dossier of 40 pages printed to a file, beside as many pages of plain text painted by Qt.
#include "benches.h"
#include "overview/dossier.h"
#include "platform/grid_view.h"
#include "platform/print_surface.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <stdexcept>

namespace bench {

namespace {

constexpr int pages = 40, sessions = 2300, lines_a_page = 59;
const QStringList session{QStringLiteral("X"),         QStringLiteral("05.10.2026"), QStringLiteral("09:30"),
                          QStringLiteral("Matematik"), QStringLiteral("ALİ CAN"),    QStringLiteral("Türev")};

void fill(GridView& grid) {
    const GridView::Filling filling(grid);
    grid.set_fixed(1, 0);
    grid.set_columns(static_cast<int>(session.size()));
    grid.set_rows(sessions + 1);
    for (int row = 1; row <= sessions; ++row) grid.set_row(row, session);
}

// The same texts on as many pages.
void paint_plain(const QString& file) {
    QPdfWriter writer(file);
    writer.setResolution(1440);
    writer.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()});
    QPainter painter(&writer);
    painter.setFont(QFont(QStringLiteral("Liberation Sans Narrow"), 10));
    for (int page = 0; page < pages; ++page) {
        if (page > 0) writer.newPage();
        for (int line = 0; line < lines_a_page; ++line)
            for (int column = 0; column < session.size(); ++column)
                painter.drawText(QPointF(600 + 1700 * column, 700 + 250 * line), session[column]);
    }
}

}  // namespace

void measure_dossier(Table& table, const BigSchool&) {
    const std::string act = "a dossier of 40 pages to a file";
    if (!table.wants(act)) return;
    const QTemporaryDir folder;
    qputenv("KURVO_PRINTER", "pdf:" + folder.path().toUtf8());
    Kurvo kurvo;
    SessionContext context;
    const Dossier dossier(kurvo, context);
    fill(*kurvo.FToplu_ETUDLER);
    for (QCheckBox* box : kurvo.ChkY) box->setChecked(box == kurvo.ChkY[3]);
    std::size_t printed = 0;
    PrintSurface::set_observer([&](const PrintSurface::Document& paper) {
        printed = paper.pages.size();
        QFile::remove(paper.file);
    });
    const QString plain = folder.filePath(QStringLiteral("plain.pdf"));
    table.compare(
        act, 2, [&] { return timed([&] { kurvo.CommandYAZFT->click(); }); },
        [&] { return timed([&] { paint_plain(plain); }); });
    PrintSurface::set_observer({});
    qunsetenv("KURVO_PRINTER");
    if (printed != pages) throw std::runtime_error("the dossier has another number of pages");
}

}  // namespace bench
