#include "overview/overview.h"

#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/rich_text.h"
#include "platform/screen_units.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"

#include <QHeaderView>
#include <QMouseEvent>

#include <algorithm>

namespace {

using screen_units::pixels;

// Twips.
constexpr int row_height = 270;
constexpr int frame_around_grid = 100;
constexpr int left_of_mouse = 1700;

QStringList collection_line(store::Recordset& Tahsilat) {
    const QString btip = Tahsilat["BTIP"].text();
    return {dates::shown(Tahsilat["TARIH"].text()), numbers::picture(Money::from_number(Tahsilat["ODENEN"].number())),
            Tahsilat[btip == u"F" ? "FNO" : "BNO"].text(), btip, Tahsilat["KASAFNO"].text()};
}

// The told height, or what the rows take where the clerk's font is larger.
int height_of_rows(const GridView& grid) {
    const int body = (grid.rows() - grid.fixed_rows()) * grid.verticalHeader()->defaultSectionSize();
    const int taken = grid.horizontalHeader()->sizeHint().height() + body + 2 * grid.frameWidth();
    return std::max(pixels(grid.rows() * row_height), taken);
}

}  // namespace

Overview::Overview(Kurvo& kurvo, SessionContext& session) : kurvo_(kurvo), session_(session) {
    on(kurvo_.CommandTOPLU, &QPushButton::clicked, this, [this] { CommandTOPLU_Click(); });
    for (const GridView* grid : {kurvo_.FToplu_Tablo2, kurvo_.FToplu_TABLO3})
        for (QWidget* part : {grid->viewport(), grid->horizontalHeader()->viewport()}) part->installEventFilter(this);
}

void Overview::show_student() {
    if (kurvo_.CommandTOPLU->isHidden()) return;
    store::Recordset& student = session_.studentTable;
    if (session_.collectionsAllowed == 1)
        kurvo_.FToplu_KTUTAR->setText(numbers::picture(Money::from_number(student["KTUTAR"].number())));
    rich_text::load(student["NOT"].text(), *kurvo_.FToplu_Text1);
    std::size_t subject = 4;
    for (const char* net : {"ORT9", "ORT10", "ORT11", "ORT12"})
        kurvo_.FToplu_OO[subject++]->setText(student[net].text());
}

void Overview::CommandTOPLU_Click() {
    if (session_.studentSelected) kurvo_.panel_goster(Kurvo::Panel::Toplu);
}

// The pop-up lives as long as the right button is held over the instalments. A grid that goes from the screen before
// that takes it along.
bool Overview::eventFilter(QObject* watched, QEvent* event) {
    const auto is_right = [event] { return static_cast<QMouseEvent*>(event)->button() == Qt::RightButton; };
    const auto& part = *qobject_cast<QWidget*>(watched);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (is_right() && kurvo_.FToplu_Tablo2->isAncestorOf(&part)) {
                const QPoint mouse = static_cast<QMouseEvent*>(event)->position().toPoint();
                fatal::guard([&] { FToplu_Tablo2_MouseDown(part.mapTo(kurvo_.FToplu_Tablo2, mouse)); });
            }
            break;
        case QEvent::MouseButtonRelease:
            if (is_right()) kurvo_.Ftoplu_FTABLO3->hide();
            break;
        case QEvent::Hide:
            if (kurvo_.FToplu_Tablo2->isAncestorOf(&part)) kurvo_.Ftoplu_FTABLO3->hide();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

// `mouse` in pixels of the grid. The right button leaves the current row where it is; only where no row has been
// chosen yet it is the one under the pointer.
void Overview::FToplu_Tablo2_MouseDown(const QPoint& mouse) {
    GridView& grid = *kurvo_.FToplu_Tablo2;
    const QPoint at = grid.viewport()->mapFrom(&grid, mouse);
    const QModelIndex under = grid.viewport()->rect().contains(at) ? grid.indexAt(at) : QModelIndex();
    if (grid.row() < 0 && under.isValid()) grid.set_current(under.row() + grid.fixed_rows(), under.column());
    if (grid.row() < 0) return;
    kurvo_.Ftoplu_FTABLO3->hide();
    if (!fill_collections()) return;
    place_popup(mouse);
    kurvo_.Ftoplu_FTABLO3->show();
    kurvo_.Ftoplu_FTABLO3->raise();
}

// Lists the collections of the current instalment; false where nothing was ever collected from anybody.
bool Overview::fill_collections() {
    GridView& grid = *kurvo_.FToplu_TABLO3;
    const GridView::Filling filling(grid);
    grid.set_rows(1);
    store::Recordset Tahsilat = session_.termDb.OpenRecordset("Tahsilat");
    Tahsilat.Index("OVTX");
    if (!Tahsilat.has_rows()) return false;
    const WaitCursor wait;
    const QString vade = dates::key_of_shown(kurvo_.FToplu_Tablo2->text(kurvo_.FToplu_Tablo2->row(), 0));
    store::scan_prefix(Tahsilat, {numbers::val(kurvo_.LONO->text()), vade}, [&] {
        grid.set_rows(grid.rows() + 1);
        grid.set_row(grid.rows() - 1, collection_line(Tahsilat));
    });
    return true;
}

// Near the pointer, but inside the form.
void Overview::place_popup(const QPoint& mouse) {
    const QPoint panel = kurvo_.Frame_Toplu->mapTo(&kurvo_, QPoint());
    const int top_of_grid = kurvo_.FToplu_Tablo2->mapTo(kurvo_.Frame_Toplu, QPoint()).y();
    const GridView& grid = *kurvo_.FToplu_TABLO3;
    const int around = pixels(frame_around_grid);
    const QSize size =
        QSize(grid.horizontalHeader()->length() + around, height_of_rows(grid) + around).boundedTo(kurvo_.size());
    const int left = panel.x() + mouse.x() - pixels(left_of_mouse);
    const int top = panel.y() + top_of_grid + mouse.y();
    kurvo_.Ftoplu_FTABLO3->setGeometry(std::clamp(left, 0, kurvo_.width() - size.width()),
                                       std::clamp(top, 0, kurvo_.height() - size.height()), size.width(),
                                       size.height());
}
