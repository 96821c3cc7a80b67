#include "platform/date_picker.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t day_part = 0, month_part = 1, year_part = 2;

const QString form = QStringLiteral("dd.MM.yyyy");

// Whether no further digit can follow.
bool is_full(std::size_t part, const QString& digits) {
    if (part == year_part) return digits.size() == 4;
    return digits.size() == 2 || digits.toInt() > (part == day_part ? 3 : 1);
}

}  // namespace

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent) {
    setLocale(QLocale(QLocale::Turkish, QLocale::Turkey));
    setDisplayFormat(form);
    setKeyboardTracking(false);
    setCalendarPopup(true);
    lineEdit()->installEventFilter(this);
    connect(this, &QDateEdit::dateChanged, this, [this] { typing_.reset(); });
}

// Only when it may drop down: a calendar takes as long to build as ten fields, and most are never looked at.
void DatePicker::set_up_calendar() {
    if (std::exchange(has_calendar_, true)) return;
    calendarWidget()->setLocale(locale());
    calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
}

void DatePicker::set_parts(int year, int month, int day) {
    if (typing_) show_text(date().toString(form));
    typing_.reset();
    const int last_year = maximumDate().year();
    const QDate first(std::clamp(year, minimumDate().year(), last_year), std::clamp(month, 1, 12), 1);
    setDate(QDate(first.year(), first.month(), std::clamp(day, 1, first.daysInMonth())));
}

void DatePicker::set_key(const QString& yyyymmdd) {
    set_parts(yyyymmdd.mid(0, 4).toInt(), yyyymmdd.mid(4, 2).toInt(), yyyymmdd.mid(6, 2).toInt());
}

QString DatePicker::key() const {
    return date().toString(QStringLiteral("yyyyMMdd"));
}

void DatePicker::take_typed() {
    if (!typing_) return;
    const Typing typed = *typing_;
    const auto number = [&](std::size_t part, int otherwise) {
        return typed.parts[part].isEmpty() ? otherwise : typed.parts[part].toInt();
    };
    int year = number(year_part, date().year());
    if (typed.parts[year_part].size() <= 2 && !typed.parts[year_part].isEmpty()) year += 2000;
    if (typed.parts[year_part].size() == 3) year = date().year();
    set_parts(year, number(month_part, date().month()), number(day_part, date().day()));
    setSelectedSection(sectionAt(static_cast<int>(typed.part)));
}

bool DatePicker::event(QEvent* event) {
    if (event->type() == QEvent::FocusOut) take_typed();
    if (event->type() != QEvent::KeyPress) return QDateEdit::event(event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (type(key)) return true;
    if (key.key() != Qt::Key_Shift) take_typed();
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return QDateEdit::event(event);
    // The base class would tell of a change on every Enter.
    event->ignore();
    return true;
}

bool DatePicker::type(const QKeyEvent& key) {
    if (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) return false;
    const QString text = key.text();
    const QChar typed = text.size() == 1 ? text.front() : QChar();
    const bool digit = typed >= u'0' && typed <= u'9', point = typed == u'.' || typed == u',' || typed == u'/';
    const bool takes_back = key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete;
    if (!digit && !point && !takes_back) return false;

    if (!typing_) {
        typing_ = Typing{{date().toString(QStringLiteral("dd")), date().toString(QStringLiteral("MM")),
                          date().toString(QStringLiteral("yyyy"))}};
        typing_->part = static_cast<std::size_t>(std::clamp(currentSectionIndex(), 0, 2));
    }
    if (digit) type_digit(typed);
    if (point) type_point();
    if (takes_back) {
        QString& part = typing_->parts[typing_->part];
        part.chop(typing_->overwrites ? part.size() : 1);
        typing_->overwrites = false;
    }
    show_typed();
    return true;
}

void DatePicker::type_digit(QChar digit) {
    QString& part = typing_->parts[typing_->part];
    if (std::exchange(typing_->overwrites, false)) part.clear();
    typing_->came_by_itself = false;
    part += digit;
    if (!is_full(typing_->part, part)) return;
    go_on();
    typing_->came_by_itself = true;
}

void DatePicker::type_point() {
    if (!std::exchange(typing_->came_by_itself, false)) go_on();
}

void DatePicker::go_on() {
    QString& part = typing_->parts[typing_->part];
    if (typing_->part != year_part) part = part.rightJustified(2, u'0');
    if (typing_->part < year_part) ++typing_->part;
    typing_->overwrites = true;
}

void DatePicker::show_typed() {
    const auto& [parts, part, overwrites, by_itself] = *typing_;
    qsizetype start = 0;
    for (std::size_t before = 0; before < part; ++before) start += parts[before].size() + 1;
    show_text(parts[day_part] + u'.' + parts[month_part] + u'.' + parts[year_part]);
    const QSignalBlocker quiet(lineEdit());
    const qsizetype size = parts[part].size();
    if (overwrites)
        lineEdit()->setSelection(static_cast<int>(start), static_cast<int>(size));
    else
        lineEdit()->setCursorPosition(static_cast<int>(start + size));
}

// Past the base class, which would make a possible date of every half of one.
void DatePicker::show_text(const QString& text) {
    const QSignalBlocker quiet(lineEdit());
    lineEdit()->setText(text);
}

// A click chooses the day, the month or the year, so that typed digits overwrite it.
bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress) take_typed();
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonRelease) setSelectedSection(currentSection());
    return QDateEdit::eventFilter(watched, event);
}

// Tab leaves the date at once instead of stepping through day, month and year, which the arrows do.
bool DatePicker::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next);
}

void DatePicker::mousePressEvent(QMouseEvent* event) {
    take_typed();
    set_up_calendar();
    QDateEdit::mousePressEvent(event);
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}
