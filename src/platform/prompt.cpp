#include "platform/prompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace {

prompt::Script* script = nullptr;

// A box that comes up in the middle of a long step is answered with a pointer, not with an hourglass.
class ArrowCursor {
public:
    ArrowCursor() : waiting_(QApplication::overrideCursor() != nullptr) {
        if (waiting_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ArrowCursor() {
        if (waiting_) QApplication::restoreOverrideCursor();
    }
    ArrowCursor(const ArrowCursor&) = delete;
    ArrowCursor& operator=(const ArrowCursor&) = delete;

private:
    bool waiting_;
};

// A longer text makes a box that is higher than the screen, with its buttons out of sight.
constexpr qsizetype longest_shown = 1500;

bool show(QMessageBox::Icon icon, const QString& text, const QString& title, bool with_cancel) {
    if (script != nullptr) return script->answer(title, text);
    const ArrowCursor arrow;
    QMessageBox box(QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    box.setIcon(icon);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text.size() <= longest_shown ? text : text.left(longest_shown) + QStringLiteral(" …"));
    if (text.size() > longest_shown) box.setDetailedText(text);
    QPushButton* ok = box.addButton(QStringLiteral("Tamam"), QMessageBox::AcceptRole);
    box.setDefaultButton(ok);
    box.setEscapeButton(with_cancel ? box.addButton(QStringLiteral("İptal"), QMessageBox::RejectRole) : ok);
    box.exec();
    return box.clickedButton() == ok;
}

}  // namespace

void prompt::tell(const QString& text, const QString& title) {
    show(QMessageBox::Information, text, title, false);
}

bool prompt::ask(const QString& text, const QString& title) {
    return show(QMessageBox::Question, text, title, true);
}

void prompt::critical(const QString& text, const QString& title) {
    show(QMessageBox::Critical, text, title, false);
}

prompt::Script::Script() : before_(std::exchange(script, this)) {}

prompt::Script::~Script() {
    script = before_;
}

prompt::Script& prompt::Script::expect(const QString& part_of_text, bool answer) {
    expected_.push_back({part_of_text, answer});
    return *this;
}

QStringList prompt::Script::failures() const {
    QStringList all = failures_;
    for (const Expected& left : expected_) all += QStringLiteral("not asked: ") + left.part;
    return all;
}

bool prompt::Script::answer(const QString& title, const QString& text) {
    seen_ += title + u'|' + text;
    if (expected_.empty() || !text.contains(expected_.front().part)) {
        failures_ += QStringLiteral("not expected: ") + text;
        return false;
    }
    const bool answer = expected_.front().answer;
    expected_.erase(expected_.begin());
    return answer;
}
