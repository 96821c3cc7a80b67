#include "platform/control_events.h"

#include "control_tests.h"
#include "platform/date_picker.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

// A form whose controls write down what happens to them.
class Form : public QWidget {
public:
    Form() {
        auto* column = new QVBoxLayout(this);
        for (QWidget* control : {static_cast<QWidget*>(&number), static_cast<QWidget*>(&kind),
                                 static_cast<QWidget*>(&day), static_cast<QWidget*>(&save)})
            column->addWidget(control);
        kind.setEditable(true);
        kind.addItems({"TL", "USD"});
        log_focus(&save, "save");
        log_focus(&day, "day");
        log_focus(&kind, "kind");
        log_focus(&number, "number");
        show();
        activateWindow();
        number.setFocus();
    }

    bool ready() {
        const bool active = QTest::qWaitForWindowActive(this);
        log.clear();
        return active && number.hasFocus();
    }

    void log_focus(QWidget* control, const QString& name) {
        control_events::on_got_focus(control, this, [this, name] { log += "+" + name; });
        control_events::on_lost_focus(control, this, [this, name] { log += "-" + name; });
    }

    QLineEdit number;
    QComboBox kind;
    DatePicker day;
    QPushButton save{"Kaydet"};
    QStringList log;
};

}  // namespace

void ControlEventsTest::lost_comes_before_got() {
    Form form;
    QVERIFY(form.ready());
    QTest::keyClick(&form.number, Qt::Key_Tab);
    QCOMPARE(form.log, QStringList({"-number", "+kind"}));
    QTest::keyClick(&form.kind, Qt::Key_Tab);
    QTest::keyClick(&form.day, Qt::Key_Tab);  // one step, whatever sections a date has
    QCOMPARE(form.log.mid(2), QStringList({"-kind", "+day", "-day", "+save"}));
    form.log.clear();
    QTest::mouseClick(&form.number, Qt::LeftButton);
    QCOMPARE(form.log, QStringList({"-save", "+number"}));
}

void ControlEventsTest::other_windows_are_no_change() {
    Form form;
    QVERIFY(form.ready());
    QWidget other;
    QLineEdit box(&other);
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    box.setFocus();
    QTRY_VERIFY(box.hasFocus());
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTRY_VERIFY(form.number.hasFocus());
    QCOMPARE(form.log, QStringList());
}

void ControlEventsTest::focus_moved_while_away() {
    Form form;
    QVERIFY(form.ready());
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    form.day.setFocus();
    QCOMPARE(form.log, QStringList());
    form.activateWindow();
    QTRY_COMPARE(form.log, QStringList({"-number", "+day"}));
}

void ControlEventsTest::lists_and_calendars_drop_down() {
    Form form;
    QVERIFY(form.ready());
    form.kind.setFocus();
    form.log.clear();
    form.kind.showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    form.kind.hidePopup();
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    QMenu menu(&form);
    menu.addAction("Kes");
    menu.popup(form.mapToGlobal(QPoint(5, 5)));
    QTRY_VERIFY(menu.isVisible());
    menu.close();
    QCOMPARE(form.log, QStringList());

    form.day.setFocus();
    form.log.clear();
    QTest::mouseClick(&form.day, Qt::LeftButton, {}, QPoint(form.day.width() - 6, form.day.height() / 2));
    QTRY_VERIFY(form.day.calendarWidget()->isVisible());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!form.day.calendarWidget()->isVisible());
    QCOMPARE(form.log, QStringList());
}

void ControlEventsTest::disabled_control_loses_the_focus() {
    Form form;
    QVERIFY(form.ready());
    form.number.setEnabled(false);
    QCOMPARE(form.log, QStringList({"-number", "+kind"}));
    form.kind.hide();
    QCOMPARE(form.log.mid(2), QStringList({"-kind", "+day"}));
}

void ControlEventsTest::handler_sends_the_focus_back() {
    Form form;
    QVERIFY(form.ready());
    const auto back = [&] { form.number.setFocus(); };
    control_events::on_lost_focus(&form.number, &form, back);
    QTest::keyClick(&form.number, Qt::Key_Tab);
    QVERIFY(form.number.hasFocus());
    QVERIFY(!form.log.contains("+kind"));
    form.log.clear();
    QTest::keyClick(&form.number, Qt::Key_Tab);
    QCOMPARE(form.log.count("-number"), 1);
}

void ControlEventsTest::keys_pass_the_filter() {
    QLineEdit box("12");
    box.setMaxLength(5);
    QString came;
    control_events::on_key_press(&box, [&](QChar key) {
        came += key;
        return key == u'i' ? QChar(u'İ') : key == u'!' || key == QChar(8) || key == QChar(13) ? QChar() : key;
    });
    bool entered = false;
    connect(&box, &QLineEdit::returnPressed, &box, [&] { entered = true; });
    QTest::keyClicks(&box, "3i!");
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(box.text(), QStringLiteral("123İ"));
    QCOMPARE(came, QStringLiteral("3i!\b\r\x1B"));
    QVERIFY(!entered);

    came.clear();
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(box.selectedText(), QStringLiteral("23İ"));
    QTest::keyClick(&box, Qt::Key_I);  // replaces the selection as typing does
    QCOMPARE(box.text(), QStringLiteral("İ"));
    QTest::keyClicks(&box, "iiiiii");
    QCOMPARE(box.text(), QStringLiteral("İİİİİ"));
    QCOMPARE(came, "iiiiiii");
}

void ControlEventsTest::input_method_passes_the_filter() {
    QLineEdit box;
    control_events::on_key_press(&box, control_events::digits_only);
    QInputMethodEvent typed;
    typed.setCommitString("4a2");
    QCoreApplication::sendEvent(&box, &typed);
    QCOMPARE(box.text(), "42");
    QTest::keyClicks(&box, "x7\b");
    QCOMPARE(box.text(), "427");
    QTest::keyClick(&box, Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(box.text(), "427");
}

void ControlEventsTest::key_down_comes_first() {
    QLineEdit box;
    QList<int> keys;
    control_events::on_key_press(&box, control_events::digits_only);
    control_events::on_key_down(&box, [&](const QKeyEvent& event) {
        keys += event.key();
        return event.key() == Qt::Key_5;
    });
    QTest::keyClicks(&box, "45");
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(box.text(), "4");
    QCOMPARE(keys, QList<int>({Qt::Key_4, Qt::Key_5, Qt::Key_Escape}));
}
