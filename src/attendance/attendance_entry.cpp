#include "attendance/attendance_entry.h"

#include "platform/cell_editor.h"
#include "platform/control_events.h"
#include "platform/date_picker.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "session/emptying.h"
#include "session/terms.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QRegularExpressionValidator>

#include <algorithm>
#include <numeric>

AttendanceEntry::AttendanceEntry(Kurvo& kurvo, SessionContext& session, Terms& terms,
                                 std::function<void()> devam_toplu_doldur)
    : kurvo_(kurvo), session_(session), devam_toplu_doldur_(std::move(devam_toplu_doldur)) {
    connect_panel();
    connect_cell();
    on(&terms, &Terms::leaving, this, [this] { hide_cell(); });
}

void AttendanceEntry::connect_panel() {
    on(kurvo_.CommandDEVAMSIZLIK, &QPushButton::clicked, this, [this] { CommandDEVAMSIZLIK_Click(); });
    control_events::on_got_focus(kurvo_.FDevam_TARIH, this, [this] { FDevam_TARIH_GotFocus(); });
    on(kurvo_.FDevam_TARIH, &QDateEdit::dateChanged, this, [this] { devam_gunu_yukle(); });
    on(kurvo_.Zetud, &QCheckBox::toggled, this, [this] { devam_gunu_yukle(); });
    on(kurvo_.FDevam_CommandKAYDET, &QPushButton::clicked, this, [this] { FDevam_CommandKAYDET_Click(); });
}

void AttendanceEntry::connect_cell() {
    GridView* grid = kurvo_.FDevam_Tablo2;
    on(grid, &GridView::cell_pressed, this, [this] { fdevam_GridEdit(u' '); });
    on(grid, &GridView::fixed_pressed, this, [this] { fdevam_GridEdit(u' '); });
    grid->viewport()->installEventFilter(this);
    grid->horizontalHeader()->viewport()->installEventFilter(this);
    control_events::on_key_down(grid, [this](const QKeyEvent& event) { return FDevam_Tablo2_KeyPress(event); });
    on(grid, &GridView::scrolled, this, [this] { commit_cell(); });
    // The box lies over the current cell or is hidden; its text stands in the cell that is left already.
    on(grid->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { hide_cell(); });

    QLineEdit* box = kurvo_.FDevam_Cel_In;
    control_events::on_key_down(box, [this](const QKeyEvent& event) { return FDevam_Cel_In_KeyDown(event); });
    control_events::on_key_press(box, control_events::digits_only);
    // What is pasted comes past the filter on keys.
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), box));
    on(box, &QLineEdit::textChanged, this, [this] { FDevam_Cel_In_Change(); });
}

void AttendanceEntry::CommandDEVAMSIZLIK_Click() {
    if (!session_.studentSelected) return;
    kurvo_.panel_goster(Kurvo::Panel::Devam);
    kurvo_.set_default_button(kurvo_.FDevam_CommandKAYDET);
    load_at_date();
}

// The date tells of the focus only when it comes from elsewhere; Enter in the date saves too.
void AttendanceEntry::load_at_date() {
    if (kurvo_.FDevam_TARIH->hasFocus())
        FDevam_TARIH_GotFocus();
    else
        kurvo_.FDevam_TARIH->setFocus();
}

void AttendanceEntry::FDevam_TARIH_GotFocus() {
    commit_cell();
    devam_gunu_yukle();
}

void AttendanceEntry::devam_gunu_yukle() {
    devam_temizle();
    // A date half typed is taken when the form closes, and the term is closed by then.
    if (!session_.studentSelected || !session_.termDbOpen) return;
    load_excuse();
    load_lessons();
}

void AttendanceEntry::devam_temizle() {
    hide_cell();
    emptying::attendance_day(kurvo_);
}

void AttendanceEntry::load_excuse() {
    store::Recordset excuses = tables().open_excuses(session_.termDb);
    excuses.Seek("=", {student(), day()});
    if (!excuses.NoMatch()) kurvo_.MAZERET->setText(excuses["ACK"].text());
}

void AttendanceEntry::load_lessons() {
    GridView& grid = *kurvo_.FDevam_Tablo2;
    const GridView::Filling filling(grid);
    store::Recordset absences = tables().open_absences(session_.termDb);
    store::scan_prefix(absences, {student(), day()}, [&] {
        const QString code = absences["DKOD"].text();
        int row = lesson_grid::row_of(grid, code);
        if (row < 0) {
            row = grid.rows();
            grid.set_rows(row + 1);
            grid.set_text(row, lesson_grid::code, code);
        }
        int column = lesson_grid::first_counter;
        for (const double hours : hours_of(absences)) {
            if (hours > 0) grid.set_text(row, column, numbers::plain(hours));
            ++column;
        }
    });
}

void AttendanceEntry::FDevam_CommandKAYDET_Click() {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    save_excuse(save_lessons());
    if (!kurvo_.CommandTOPLU->isHidden() && devam_toplu_doldur_) devam_toplu_doldur_();
    commit_cell();
    load_at_date();
}

bool AttendanceEntry::save_lessons() {
    const GridView& grid = *kurvo_.FDevam_Tablo2;
    store::WriteScope scope(session_.termDb);
    store::Recordset absences = tables().open_absences(session_.termDb);
    bool kayit_var = false;
    for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
        const QString code = grid.text(row, lesson_grid::code);
        const Hours hours = typed_hours(row);
        absences.Seek("=", {student(), day(), code});
        const bool is_stored = !absences.NoMatch();
        if (std::accumulate(hours.begin(), hours.end(), 0.0) <= 0) {
            if (is_stored) absences.Delete();
            continue;
        }
        kayit_var = true;
        is_stored ? absences.Edit() : absences.AddNew();
        if (!is_stored) {
            absences["ONO"] = student();
            absences["TARIH"] = day();
            absences["DKOD"] = code;
        }
        for (std::size_t i = 0; i < hours.size(); ++i) absences[counter_fields[i]] = hours[i];
        absences.Update();
    }
    scope.commit();
    return kayit_var;
}

Hours AttendanceEntry::typed_hours(int row) const {
    Hours hours;
    for (std::size_t i = 0; i < hours.size(); ++i)
        hours[i] = numbers::val(kurvo_.FDevam_Tablo2->text(row, lesson_grid::first_counter + static_cast<int>(i)));
    return hours;
}

// An excuse is stored or changed only with hours on its day, and goes whenever the box is empty.
void AttendanceEntry::save_excuse(bool kayit_var) {
    store::Recordset excuses = tables().open_excuses(session_.termDb);
    excuses.Seek("=", {student(), day()});
    const QString typed = kurvo_.MAZERET->text(), trimmed = typed.trimmed();
    if (excuses.NoMatch()) {
        if (trimmed.isEmpty() || !kayit_var) return;
        excuses.AddNew();
        excuses["ONO"] = student();
        excuses["TARIH"] = day();
        excuses["ACK"] = typed;
        excuses.Update();
    } else if (trimmed.isEmpty()) {
        excuses.Delete();
    } else if (kayit_var && trimmed != excuses["ACK"].text()) {
        excuses.Edit();
        excuses["ACK"] = trimmed;
        excuses.Update();
    }
}

// A character takes the place of the cell's text; a blank or a control character opens the text as it stands.
void AttendanceEntry::fdevam_GridEdit(QChar key) {
    GridView& grid = *kurvo_.FDevam_Tablo2;
    if (grid.rows() <= grid.fixed_rows()) return;
    if (grid.row() < 0) grid.set_current(grid.fixed_rows(), grid.fixed_columns());
    grid.scrollTo(grid.currentIndex());
    const bool types = key > u' ';
    kurvo_.FDevam_Cel_In->open(grid, grid.row(), grid.column(), types ? key : grid.text(grid.row(), grid.column()),
                               types ? CellEditor::Caret::at_end : CellEditor::Caret::at_start);
}

void AttendanceEntry::FDevam_Cel_In_Change() {
    GridView& grid = *kurvo_.FDevam_Tablo2;
    if (!kurvo_.FDevam_Cel_In->isHidden()) grid.set_text(grid.row(), grid.column(), kurvo_.FDevam_Cel_In->text());
}

bool AttendanceEntry::FDevam_Cel_In_KeyDown(const QKeyEvent& event) {
    if (event.modifiers() & ~Qt::KeypadModifier) return false;
    switch (event.key()) {
        case Qt::Key_Escape:
            hide_cell();
            return true;
        case Qt::Key_Down:
            move_cell(1, 0);
            return true;
        case Qt::Key_Up:
            move_cell(-1, 0);
            return true;
        case Qt::Key_Right:
            move_cell(0, 1);
            return true;
        case Qt::Key_Left:
            move_cell(0, -1);
            return true;
        default:
            return false;
    }
}

// The keys of one who types fast wait until the box lies over the next cell: in between they would change this one.
void AttendanceEntry::move_cell(int down, int right) {
    GridView& grid = *kurvo_.FDevam_Tablo2;
    grid.setFocus();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    grid.set_current(std::clamp(grid.row() + down, grid.fixed_rows(), grid.rows() - 1),
                     std::clamp(grid.column() + right, grid.fixed_columns(), grid.columns() - 1));
    fdevam_GridEdit(u' ');
}

// A key of the grid goes to the box that lies over it, and only digits may stand there.
bool AttendanceEntry::FDevam_Tablo2_KeyPress(const QKeyEvent& event) {
    const bool leaves = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    const bool combined = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (kurvo_.FDevam_Cel_In->isHidden() || leaves || combined || event.text().size() != 1) return false;
    const QChar key = event.text().front();
    if (key <= u' ' || !control_events::digits_only(key).isNull()) fdevam_GridEdit(key);
    return true;
}

// A press beside the cells, on the heading too, opens the current cell.
bool AttendanceEntry::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress) return false;
    const auto& press = static_cast<QMouseEvent&>(*event);
    const GridView& grid = *kurvo_.FDevam_Tablo2;
    const bool on_cell = watched == grid.viewport() && grid.indexAt(press.position().toPoint()).isValid();
    if (on_cell || press.button() != Qt::LeftButton) return false;
    fatal::guard([this] { fdevam_GridEdit(u' '); });
    return true;
}

void AttendanceEntry::commit_cell() {
    FDevam_Cel_In_Change();
    hide_cell();
}

// Hidden with the focus on it, the box would hand the focus to whatever comes next.
void AttendanceEntry::hide_cell() {
    if (kurvo_.FDevam_Cel_In->hasFocus()) kurvo_.FDevam_Tablo2->setFocus();
    kurvo_.FDevam_Cel_In->hide();
}

const AttendanceTables& AttendanceEntry::tables() const {
    return kurvo_.Zetud->isChecked() ? study_attendance : class_attendance;
}

double AttendanceEntry::student() const {
    return numbers::val(kurvo_.LONO->text());
}

QString AttendanceEntry::day() const {
    return kurvo_.FDevam_TARIH->key();
}
