#include "clerk.h"

#include "platform/slots.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QStringList papers_in(const QDir& folder) {
    return folder.entryList({u"*.pdf"_s}, QDir::Files, QDir::Time | QDir::Reversed);
}

// A layout of keys has not all letters, so they come without a key.
void send_letters(QWidget* box, const QString& text) {
    for (const QChar letter : text) QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, letter, {});
}

QPoint place_of(const GridView& grid, int row, int column) {
    return grid.viewport()->mapFrom(grid.parentWidget(), grid.cell_rect(row, column).center());
}

}  // namespace

void must(bool seen, const QString& words) {
    if (!seen) throw std::runtime_error(words.toStdString());
}

Clerk::Clerk(Office& office, const QString& folder)
    : office_(office), folder_(folder), older_papers_(papers_in(folder_)) {
    fatal::set_handler([this](const std::exception& error) { failure_ += QString::fromUtf8(error.what()); });
    must(program_.start(), u"the program does not start"_s);
    must(QTest::qWaitForWindowActive(&kurvo()), u"the form does not come up"_s);
}

Clerk::~Clerk() {
    fatal::set_handler({});
}

KurvoYeni& Clerk::record_form() {
    KurvoYeni* open = program_.record_form();
    must(open != nullptr, u"the record form is not open"_s);
    return *open;
}

void Clerk::reach(QWidget* control) {
    must(control->isVisible(), control->objectName() + u" is not to be seen"_s);
    must(control->isEnabled(), control->objectName() + u" is locked"_s);
    control->activateWindow();
    // A window counts as active while the one behind it is, so ask which one the keys really go to.
    must(QTest::qWaitFor([&] { return QApplication::activeWindow() == control->window(); }),
         u"the window is not active"_s);
}

// A check box or an option button answers only on its sign and its words.
void Clerk::press(QAbstractButton* button) {
    reach(button);
    const bool is_sign = qobject_cast<QCheckBox*>(button) != nullptr || qobject_cast<QRadioButton*>(button) != nullptr;
    const QPoint at = is_sign ? QPoint(button->height() / 2, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, at);
}

void Clerk::type(QLineEdit* box, const QString& text, Qt::Key then) {
    reach(box);
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
    send_letters(box, text);
    if (then != Qt::Key_unknown) QTest::keyClick(box, then);
}

QWidget& Clerk::window() {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr ? *active : kurvo();
}

void Clerk::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &window(), key, modifiers);
}

void Clerk::click_cell(GridView& grid, int row, int column) {
    reach(&grid);
    must(row < grid.rows(), grid.objectName() + u" has no such row"_s);
    grid.set_current(row, column);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place_of(grid, row, column));
}

void Clerk::double_click_cell(GridView& grid, int row, int column) {
    click_cell(grid, row, column);
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place_of(grid, row, column));
}

void Clerk::choose(QComboBox* list, int position) {
    reach(list);
    list->setFocus();
    for (int presses = 0; presses <= list->count() && list->currentIndex() != position; ++presses)
        QTest::keyClick(list, list->currentIndex() < position ? Qt::Key_Down : Qt::Key_Up);
    must(list->currentIndex() == position, list->objectName() + u" does not take the choice"_s);
}

void Clerk::type_date(DatePicker* box, const QString& shown) {
    reach(box);
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(box, shown);
    QTest::keyClick(box, Qt::Key_Tab);
    must(dates::shown(box->date()) == shown, box->objectName() + u" does not take "_s + shown);
}

void Clerk::type_note(const QString& text) {
    reach(kurvo().Text1);
    send_letters(kurvo().Text1, text);
}

void Clerk::write(QPlainTextEdit* box, const QStringList& lines) {
    reach(box);
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) QTest::keyClick(box, Qt::Key_Return);
        send_letters(box, lines[i]);
    }
    must(box->toPlainText() == lines.join(u'\n'), box->objectName() + u" does not take the text"_s);
}

void Clerk::import_students(const QByteArray& table, const QStringList& lines) {
    QFile file(folder_.filePath(u"yeni-ogrenciler.csv"_s));
    must(file.open(QIODevice::WriteOnly) && file.write(table) == table.size(), u"the workbook cannot be written"_s);
    file.close();
    press(kurvo().CommandDOSYADAN);
    type(kurvo().ONAME, file.fileName());
    int column = 0;
    for (const std::size_t box : {0, 1, 2, 3, 9}) type(kurvo().bas[box], QString::number(++column));
    press(kurvo().CommandAKTAR);
    QStringList said;
    for (int i = 0; i < kurvo().ListA->count(); ++i) said += kurvo().ListA->item(i)->text();
    must(said == lines, said.join(u"; "));
    file.remove();
}

void Clerk::resize(const QSize& size) {
    window().resize(size);
    QCoreApplication::sendPostedEvents();
}

QString Clerk::picture(const QString& name) {
    const QString file = folder_.filePath(u"%1-%2.png"_s.arg(++pictures_, 2, 10, QChar(u'0')).arg(name));
    must(window().grab().save(file), file + u" cannot be written"_s);
    return file;
}

QStringList Clerk::papers() const {
    QStringList names = papers_in(folder_);
    names.removeIf([this](const QString& name) { return older_papers_.contains(name); });
    return names;
}

void Clerk::check_quiet() {
    must(failure_.isEmpty(), failure_);
    const QStringList wrong = prompts_.failures();
    must(wrong.isEmpty(), wrong.join(u"; "));
}
