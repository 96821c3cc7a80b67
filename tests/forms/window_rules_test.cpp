#include "forms/window_rules.h"

#include "platform/control_events.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "support/run_all.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

class Form : public QWidget, public DefaultButtonRule {
public:
    Form() {
        column_ = new QVBoxLayout(this);
        watch(this);
        add(box), add(kind), add(day), add(save), add(other);
        kind.addItems({"TL", "USD", "EUR"});
        set_default_button(&save);
        show();
        activateWindow();
        connect(&save, &QPushButton::clicked, this, [this] { presses += 1; });
    }

    // A control may join long after the rule began to watch.
    void add(QWidget& control) { column_->addWidget(&control); }

    // Whether Enter in the control pressed the default button, with the focus left where it was.
    bool presses_from(QWidget& control) {
        control.setFocus();
        const int before = presses;
        QTest::keyClick(&control, Qt::Key_Return);
        return presses == before + 1 && control.hasFocus();
    }

    int presses = 0;
    QLineEdit box;
    QComboBox kind;
    DatePicker day;
    QPushButton save{"&Kaydet"}, other{"Sil"};

private:
    QVBoxLayout* column_;
};

}  // namespace

class WindowRulesTest : public QObject {
    Q_OBJECT

private slots:
    void enter_presses_from_one_line_controls() {
        Form form;
        QLineEdit late;
        QComboBox free_text;
        free_text.setEditable(true);
        QCheckBox check("Kurum adı");
        form.add(late), form.add(free_text), form.add(check);
        QVERIFY(QTest::qWaitForWindowActive(&form));
        for (QWidget* control :
             std::initializer_list<QWidget*>{&form.box, &form.kind, &form.day, &late, &free_text, &check})
            QVERIFY2(form.presses_from(*control), control->metaObject()->className());

        // A held key does not post twice.
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        const int before = form.presses;
        QCoreApplication::sendEvent(&form.box, &again);
        QCOMPARE(form.presses, before);
    }

    void other_controls_keep_enter() {
        Form form;
        QTextEdit text;
        GridView grid;
        grid.set_widths({1000});
        grid.set_rows(2);
        grid.set_current(1, 0);
        form.add(text), form.add(grid);
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QSignalSpy clicked(&grid, &GridView::cell_clicked), deleted(&form.other, &QPushButton::clicked),
            entered(&form.box, &QLineEdit::returnPressed);
        QVERIFY(!form.presses_from(text) && !form.presses_from(grid) && !form.presses_from(form.other));
        QCOMPARE(text.toPlainText(), "\n");
        QCOMPARE(clicked.count() + deleted.count(), 2);

        form.save.setEnabled(false);
        QVERIFY(!form.presses_from(form.box));
        form.save.setEnabled(true);
        form.save.hide();
        QVERIFY(!form.presses_from(form.box));
        form.save.show();
        form.set_default_button(nullptr);
        QVERIFY(!form.presses_from(form.box));
        QCOMPARE(entered.count(), 3);
    }

    void open_list_and_date_are_taken_first() {
        Form form;
        QVERIFY(QTest::qWaitForWindowActive(&form));
        form.kind.setFocus();
        form.kind.showPopup();
        QTRY_VERIFY(form.kind.view()->isVisible());
        QTest::keyClick(form.kind.view(), Qt::Key_Down);
        QTest::keyClick(form.kind.view(), Qt::Key_Return);
        QTRY_VERIFY(!form.kind.view()->isVisible());
        QCOMPARE(form.kind.currentText(), "USD");
        QCOMPARE(form.presses, 0);

        form.day.set_key("20260115");
        form.day.setFocus();
        form.day.setSelectedSection(QDateTimeEdit::DaySection);
        QString stored;
        connect(&form.day, &QDateEdit::dateChanged, &form, [&] { stored += "date "; });
        connect(&form.save, &QPushButton::clicked, &form, [&] { stored += form.day.key(); });
        QTest::keyClicks(&form.day, "22");
        QTest::keyClick(&form.day, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(stored, "date 20260122");
    }

    void mnemonic_gives_the_focus_first() {
        Form form;
        QVERIFY(QTest::qWaitForWindowActive(&form));
        form.box.setFocus();
        QString log;
        control_events::on_lost_focus(&form.box, &form, [&] { log += "lost "; });
        connect(&form.save, &QPushButton::clicked, &form,
                [&] { log += form.save.hasFocus() ? "pressed" : "too early"; });
        QTest::keyClick(&form, Qt::Key_K, Qt::AltModifier);
        QTRY_COMPARE(log, "lost pressed");

        // What the control left behind may take the button away.
        form.box.setFocus();
        control_events::on_lost_focus(&form.box, &form, [&] { form.save.setEnabled(false); });
        log.clear();
        QTest::keyClick(&form, Qt::Key_K, Qt::AltModifier);
        QCOMPARE(log, "lost ");
    }
};

static const Registered<WindowRulesTest> registered;
#include "window_rules_test.moc"
