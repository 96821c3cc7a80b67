#include "platform/control_events.h"

#include "platform/date_picker.h"
#include "support/run_all.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// A form whose controls write down what happens to them.
class Form : public QWidget {
public:
    Form() {
        auto* column = new QVBoxLayout(this);
        for (QWidget* control : std::initializer_list<QWidget*>{&number, &kind, &day, &save})
            column->addWidget(control);
        for (const auto& [control, name] : std::initializer_list<std::pair<QWidget*, QString>>{
                 {&save, "save"}, {&day, "day"}, {&kind, "kind"}, {&number, "number"}}) {
            control_events::on_got_focus(control, this, [this, name = name] { log += "+" + name; });
            control_events::on_lost_focus(control, this, [this, name = name] { log += "-" + name; });
        }
        kind.setEditable(true);
        kind.addItems({"TL", "USD"});
        show();
        activateWindow();
        number.setFocus();
    }

    bool ready() {
        const bool active = QTest::qWaitForWindowActive(this);
        log.clear();
        return active && number.hasFocus();
    }

    QLineEdit number;
    QComboBox kind;
    DatePicker day;
    QPushButton save{"Kaydet"};
    QStringList log;
};

}  // namespace

class ControlEventsTest : public QObject {
    Q_OBJECT

private slots:
    void lost_comes_before_got() {
        Form form;
        QVERIFY(form.ready());
        QTest::keyClick(&form.number, Qt::Key_Tab);
        QCOMPARE(form.log, QStringList({"-number", "+kind"}));
        QTest::keyClick(&form.kind, Qt::Key_Tab);
        QTest::keyClick(&form.day, Qt::Key_Tab);  // one step, whatever sections a date has
        QCOMPARE(form.log.mid(2), QStringList({"-kind", "+day", "-day", "+save"}));
        form.log.clear();
        QTest::mouseClick(&form.number, Qt::LeftButton);
        form.number.setEnabled(false);
        form.kind.hide();
        QCOMPARE(form.log, QStringList({"-save", "+number", "-number", "+kind", "-kind", "+day"}));
    }

    void other_windows_are_no_change() {
        Form form;
        QVERIFY(form.ready());
        QWidget other;
        const auto go_to = [](QWidget& window) {
            window.activateWindow();
            return QTest::qWaitForWindowActive(&window);
        };
        other.show();
        QVERIFY(go_to(other) && go_to(form));
        QTRY_VERIFY(form.number.hasFocus());
        QVERIFY(go_to(other));
        form.day.setFocus();  // moved while another window is used
        QCOMPARE(form.log, QStringList());
        QVERIFY(go_to(form));
        QTRY_COMPARE(form.log, QStringList({"-number", "+day"}));
    }

    void lists_and_calendars_drop_down() {
        Form form;
        QVERIFY(form.ready());
        form.kind.setFocus();
        form.log.clear();
        form.kind.showPopup();
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        form.kind.hidePopup();
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(form.log, QStringList());

        form.day.setFocus();
        form.log.clear();
        QTest::mouseClick(&form.day, Qt::LeftButton, {}, QPoint(form.day.width() - 6, form.day.height() / 2));
        QTRY_VERIFY(form.day.calendarWidget()->isVisible());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!form.day.calendarWidget()->isVisible());
        QCOMPARE(form.log, QStringList());
    }

    void handler_sends_the_focus_back() {
        Form form;
        QVERIFY(form.ready());
        control_events::on_lost_focus(&form.number, &form, [&] { form.number.setFocus(); });
        QTest::keyClick(&form.number, Qt::Key_Tab);
        QVERIFY(form.number.hasFocus() && !form.log.contains("+kind"));
        form.log.clear();
        QTest::keyClick(&form.number, Qt::Key_Tab);
        QCOMPARE(form.log.count("-number"), 1);
    }

    void keys_pass_the_filter() {
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

        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&box, "iiiiiii");  // replaces the selection, up to the limit, as typing does
        QCOMPARE(box.text(), QStringLiteral("İİİİİ"));
        QCOMPARE(came, QStringLiteral("3i!\b\r\x1Biiiiiii"));
    }

    void digits_come_after_the_key_down() {
        QLineEdit box;
        control_events::on_key_press(&box, control_events::digits_only);
        QInputMethodEvent typed;
        typed.setCommitString("4a2");
        QCoreApplication::sendEvent(&box, &typed);
        QTest::keyClicks(&box, "x7\b");
        QTest::keyClick(&box, Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(box.text(), "427");
        QList<int> keys;
        control_events::on_key_down(&box, [&](const QKeyEvent& event) {
            keys += event.key();
            return event.key() == Qt::Key_5;
        });
        QTest::keyClicks(&box, "45");
        QTest::keyClick(&box, Qt::Key_Escape);
        QCOMPARE(box.text(), "4274");
        QCOMPARE(keys, QList<int>({Qt::Key_4, Qt::Key_5, Qt::Key_Escape}));
    }
};

static const Registered<ControlEventsTest> registered;
#include "control_events_test.moc"
