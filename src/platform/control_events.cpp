#include "platform/control_events.h"

#include "platform/focus_watch.h"
#include "platform/slots.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

#include <utility>

namespace {

constexpr QChar backspace(0x08), enter(0x0D), escape(0x1B);

// What a key gives as characters; empty for one that gives none.
QString characters(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Backspace) return event.modifiers() & Qt::AltModifier ? QString() : QString(backspace);
    // AltGr counts as Ctrl and Alt together on Windows, and writes characters.
    const bool ctrl = event.modifiers() & Qt::ControlModifier, alt = event.modifiers() & Qt::AltModifier;
    if (ctrl != alt || (event.modifiers() & Qt::MetaModifier)) return {};
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return QString(enter);
    if (event.key() == Qt::Key_Escape) return QString(escape);
    for (const QChar c : event.text())
        if (!c.isPrint() && !c.isSurrogate()) return {};
    return event.text();
}

// All handlers of one control's keys, so that their order does not hang on the order of connecting.
class KeyWatch : public QObject {
public:
    static KeyWatch& of(QWidget* control) {
        const QString name = QStringLiteral("key watch");
        if (QObject* known = control->findChild<QObject*>(name, Qt::FindDirectChildrenOnly))
            return static_cast<KeyWatch&>(*known);
        auto* made = new KeyWatch(control);
        made->setObjectName(name);
        control->installEventFilter(made);
        return *made;
    }

    std::function<bool(const QKeyEvent&)> key_down;
    std::function<QChar(QChar)> filter;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (sending_) return false;
        if (event->type() == QEvent::KeyPress) return key(watched, static_cast<QKeyEvent&>(*event));
        if (event->type() == QEvent::InputMethod && filter)
            return input_method(watched, static_cast<QInputMethodEvent&>(*event));
        return false;
    }

private:
    using QObject::QObject;

    QString filtered(const QString& typed) const {
        QString taken;
        fatal::guard([&] {
            for (const QChar c : typed)
                if (const QChar effect = filter(c); !effect.isNull()) taken += effect;
        });
        return taken;
    }

    bool key(QObject* box, const QKeyEvent& event) {
        bool taken = false;
        if (key_down) fatal::guard([&] { taken = key_down(event); });
        if (taken || !filter) return taken;
        const QString typed = characters(event);
        if (typed.isEmpty()) return false;
        const QString effect = filtered(typed);
        if (effect == typed) return false;
        if (!effect.isEmpty()) {
            QKeyEvent changed(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, effect);
            send(box, changed);
        }
        return true;
    }

    bool input_method(QObject* box, const QInputMethodEvent& event) {
        const QString effect = filtered(event.commitString());
        if (effect == event.commitString()) return false;
        QInputMethodEvent changed(event.preeditString(), event.attributes());
        changed.setCommitString(effect, event.replacementStart(), event.replacementLength());
        send(box, changed);
        return true;
    }

    void send(QObject* box, QEvent& event) {
        sending_ = true;
        QCoreApplication::sendEvent(box, &event);
        sending_ = false;
    }

    bool sending_ = false;
};

}  // namespace

void control_events::on_got_focus(QWidget* control, QObject* context, std::function<void()> handler) {
    new FocusWatch(control, context, std::move(handler), {});
}

void control_events::on_lost_focus(QWidget* control, QObject* context, std::function<void()> handler) {
    new FocusWatch(control, context, {}, std::move(handler));
}

void control_events::on_key_down(QWidget* control, std::function<bool(const QKeyEvent&)> handler) {
    KeyWatch::of(control).key_down = std::move(handler);
}

void control_events::on_key_press(QLineEdit* box, std::function<QChar(QChar)> filter) {
    KeyWatch::of(box).filter = std::move(filter);
}

QChar control_events::digits_only(QChar key) {
    return key >= u'0' && key <= u'9' ? key : QChar();
}
