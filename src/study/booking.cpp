#include "study/booking.h"

#include "platform/clock.h"
#include "platform/control_events.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "study/reference_names.h"
#include "study/session_times.h"
#include "study/student_sessions.h"

#include <utility>

namespace {

constexpr int latest_hour = 24, latest_minute = 59;
constexpr int shortest_lesson = 3;  // a code of two characters and the closing parenthesis

const QString attended_mark = QStringLiteral("X");
const QString blank = QStringLiteral(" ");

// Comes back to the handler of the change with the corrected text.
void limit(QLineEdit* box, int highest) {
    if (numbers::val(box->text()) > highest) box->setText(QString::number(highest));
}

QString two_digits(QLineEdit* box) {
    box->setText(box->text().rightJustified(2, u'0'));
    return box->text();
}

// "NAME   (CODE)": a name may hold parentheses of its own.
QString name_in(const QString& entry) {
    return entry.left(entry.lastIndexOf(u'(')).trimmed();
}

// Of a typed lesson without parentheses too.
QString lesson_code(const QString& entry) {
    return entry.mid(entry.size() - shortest_lesson, 2);
}

QString teacher_number(const QString& entry) {
    return entry.mid(entry.lastIndexOf(u'(') + 1).chopped(1);
}

// A name that the list does not offer leaves the choice as it was.
void choose_by_name(QComboBox* list, const QString& name) {
    for (int entry = 0; entry < list->count(); ++entry)
        if (name_in(list->itemText(entry)) == name.trimmed()) return list->setCurrentIndex(entry);
}

}  // namespace

Booking::Booking(Kurvo& kurvo, SessionContext& session, BookingFollowers followers)
    : kurvo_(kurvo), session_(session), followers_(std::move(followers)) {
    on(kurvo_.CommandETUD, &QPushButton::clicked, this, [this] { CommandETUD_Click(); });
    on(kurvo_.CommanOK, &QPushButton::clicked, this, [this] { CommanOK_Click(); });
    connect_times();
    connect_lists();
}

void Booking::connect_times() {
    const std::pair<QLineEdit*, QLineEdit*> times[] = {{kurvo_.FEtud_SAAT, kurvo_.FEtud_DAKIKA},
                                                       {kurvo_.FEtud_BITSAAT, kurvo_.FEtud_BITDAKIKA}};
    for (const auto& [hours, minutes] : times) {
        on(hours, &QLineEdit::textChanged, this, [hours = hours, minutes = minutes] {
            limit(hours, latest_hour);
            // Selected, so that typed minutes take the place of the former ones. Only for who types here: hours that
            // a booking pads must not draw the next student's number into the minutes.
            if (hours->hasFocus() && hours->text().size() == 2) minutes->setFocus(Qt::TabFocusReason);
        });
        on(minutes, &QLineEdit::textChanged, this, [minutes = minutes] { limit(minutes, latest_minute); });
    }
}

void Booking::connect_lists() {
    GridView* sessions = kurvo_.FEtud_Tablo1;
    on(sessions, &GridView::cell_pressed, this,
       [this] { pressed_as_another_came_ = std::exchange(another_came_, false); });
    on(sessions, &GridView::cell_double_clicked, this, [this](int row, int) {
        if (!pressed_as_another_came_) FEtud_Tablo1_DblClick(row);
    });
    sessions->setToolTip(QStringLiteral("Çift tıklama ya da Ctrl+Del etüdü iptal eder"));
    control_events::on_key_down(sessions, [this, sessions](const QKeyEvent& key) {
        if (key.key() != Qt::Key_Delete || key.modifiers() != Qt::ControlModifier) return false;
        if (!key.isAutoRepeat() && sessions->row() >= sessions->fixed_rows()) FEtud_Tablo1_DblClick(sessions->row());
        return true;
    });
    on(kurvo_.FEtud_Tablo2, &GridView::cell_clicked, this, [this](int row, int) { FEtud_Tablo2_Click(row); });
}

void Booking::CommandETUD_Click() {
    if (!session_.studentSelected) return;
    kurvo_.panel_goster(Kurvo::Panel::Etud);
    kurvo_.set_default_button(kurvo_.CommanOK);
    kurvo_.FEtud_TARIH->setFocus();
    follow(followers_.gun_tahtasi_doldur);
}

// The fields keep their values, so that the next student can be booked for the same session at once.
void Booking::CommanOK_Click() {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    if (kurvo_.FEtud_SICIL->currentIndex() < 0) return prompt::tell(QStringLiteral("Öğretmen seçiniz"), {});
    if (kurvo_.FEtud_DKOD->currentText().size() < shortest_lesson)
        return prompt::tell(QStringLiteral("Ders seçiniz"), {});
    store_session();
    etud_liste_doldur();
    follow(followers_.gun_tahtasi_doldur);
    follow(followers_.etud_toplu_doldur);
}

// A booking that is changed keeps its mark of attendance.
void Booking::store_session() {
    const QString tarih = kurvo_.FEtud_TARIH->key();
    const QString saat = two_digits(kurvo_.FEtud_SAAT) + two_digits(kurvo_.FEtud_DAKIKA);
    const QString bitsaat = two_digits(kurvo_.FEtud_BITSAAT) + two_digits(kurvo_.FEtud_BITDAKIKA);
    const QString konu = kurvo_.FEtud_KONU->text().trimmed();
    kurvo_.FEtud_KONU->setText(konu.isEmpty() ? blank : konu);

    store::Recordset etud = session_.termDb.OpenRecordset("Etud");
    etud.Index("OTSX");
    etud.Seek("=", {session_.shownStudent, tarih, saat});
    if (etud.NoMatch()) {
        etud.AddNew();
        etud["TARIH"] = tarih;
        etud["SAAT"] = saat;
        etud["ONO"] = session_.shownStudent;
        etud["GIRDI"] = blank;
    } else {
        etud.Edit();
    }
    etud["BITSAAT"] = bitsaat;
    etud["SICIL"] = teacher_number(kurvo_.FEtud_SICIL->currentText());
    etud["KOD"] = lesson_code(kurvo_.FEtud_DKOD->currentText());
    etud["KONU"] = kurvo_.FEtud_KONU->text();
    etud.Update();
}

void Booking::etud_liste_doldur() {
    const std::vector<StudentSession> sessions = read_sessions(session_.termDb, kurvo_.LONO->text());
    GridView& grid = *kurvo_.FEtud_Tablo1;
    const std::int64_t former = std::exchange(listed_student_, session_.shownStudent);
    another_came_ = grid.hasFocus() && former != listed_student_;
    const GridView::Filling filling(grid);
    grid.set_rows(1);
    if (sessions.empty()) return;
    ReferenceNames names(session_.reference_file());
    grid.set_rows(static_cast<int>(sessions.size()) + 1);
    int row = 1;
    for (const StudentSession& session : sessions)
        grid.set_row(row++, {dates::shown(session.tarih), session_times::shown(session.saat),
                             session_times::shown(session.bitsaat), names.lesson(session.kod),
                             names.teacher(session.sicil), session.konu});
}

void Booking::FEtud_Tablo2_Click(int row) {
    const GridView& board = *kurvo_.FEtud_Tablo2;
    const QString start = board.text(row, 0), end = board.text(row, 1);
    kurvo_.FEtud_SAAT->setText(session_times::hours(start));
    kurvo_.FEtud_DAKIKA->setText(session_times::minutes(start));
    kurvo_.FEtud_BITSAAT->setText(session_times::hours(end));
    kurvo_.FEtud_BITDAKIKA->setText(session_times::minutes(end));
    kurvo_.FEtud_KONU->setText(board.text(row, 5));
    choose_by_name(kurvo_.FEtud_DKOD, board.text(row, 2));
    choose_by_name(kurvo_.FEtud_SICIL, board.text(row, 4));
    // The changed hours have sent the focus to the minutes.
    kurvo_.FEtud_SAAT->setFocus(Qt::TabFocusReason);
}

void Booking::FEtud_Tablo1_DblClick(int row) {
    if (!session_.card_is_of(kurvo_.LONO->text())) return;
    if (!cancel(row)) prompt::tell(QStringLiteral("Öğrenci etüdü almış, silinemez."), QStringLiteral("Dikkat"));
}

bool Booking::cancel(int row) {
    const QString date = kurvo_.FEtud_Tablo1->text(row, 0), start = kurvo_.FEtud_Tablo1->text(row, 1);
    const bool is_on_board = dates::shown(kurvo_.FEtud_TARIH->date()) == date;
    const WaitCursor wait;
    store::Recordset etud = session_.termDb.OpenRecordset("Etud");
    etud.Index("OTSX");
    etud.Seek("=", {session_.shownStudent, dates::key_of_shown(date), session_times::key_of_shown(start)});
    if (etud.NoMatch()) return true;
    if (etud["GIRDI"].text() == attended_mark) return false;
    etud.Delete();
    etud.Close();
    etud_liste_doldur();
    if (is_on_board) follow(followers_.gun_tahtasi_doldur);
    return true;
}

void Booking::follow(const std::function<void()>& follower) const {
    if (follower) follower();
}
