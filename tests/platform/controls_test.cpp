#include "platform/cell_editor.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "support/run_all.h"

#include <QSignalSpy>
#include <QVBoxLayout>

class ControlsTest : public QObject {
    Q_OBJECT

private slots:
    void date_is_typed() {
        QWidget form;
        QVBoxLayout column(&form);
        QLineEdit box;
        DatePicker day;
        column.addWidget(&box);
        column.addWidget(&day);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        const QStringList dates[]{// before, typed, after: longer and shorter months, points, parts of a date, 30 days,
                                  // a wrong digit taken back, a leap day
                                  {"20260115", "07092026", "20260907"}, {"20260210", "31032027", "20270331"},
                                  {"20260131", "28022026", "20260228"}, {"20261231", "5.6.2027", "20270605"},
                                  {"20261015", "22", "20261022"},       {"20260115", "0102.27", "20270201"},
                                  {"20260115", "0102202", "20260201"},  {"20260115", "31.4.", "20260430"},
                                  {"20260115", "03\b05", "20260503"},   {"20260301", "29022028", "20280229"}};
        for (const QStringList& date : dates) {
            day.set_key(date[0]);
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_Tab);
            QTest::keyClicks(&day, date[1]);
            QTest::keyClick(&day, Qt::Key_Tab);
            QCOMPARE(day.key(), date[2]);
            QCOMPARE(day.text(), QStringLiteral("%1.%2.%3").arg(date[2].mid(6), date[2].mid(4, 2), date[2].left(4)));
            QVERIFY(!day.hasFocus());
        }
    }

    void date_changes_once() {
        DatePicker day;
        day.set_key("20260115");
        day.show();
        QSignalSpy changes(&day, &QDateEdit::dateChanged);
        day.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&day, "07092027");
        QCOMPARE(changes.count(), 0);
        QTest::keyClick(&day, Qt::Key_Return);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(day.key(), "20270907");
        QWheelEvent wheel(QPointF(5, 5), day.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&day, &wheel);
        QCOMPARE(changes.count(), 1);
    }

    void impossible_dates_come_near() {
        DatePicker day;
        const std::pair<QString, QString> keys[]{
            {"20260231", "20260228"}, {"20260015", "20260115"}, {"20260500", "20260501"}, {"20261301", "20261201"}};
        for (const auto& [key, result] : keys) {
            day.set_key("20260831");
            day.set_key(key);
            QCOMPARE(day.key(), result);
        }
    }

    void editor_lies_over_the_cell() {
        QWidget form;
        GridView grid(&form);
        grid.setGeometry(20, 30, 300, 150);
        grid.set_fixed(1, 0);
        grid.set_widths({960, 1080});
        grid.set_rows(4);
        grid.set_text(2, 1, "750");
        CellEditor editor(&form);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        bool visible_while_set = true;
        connect(&editor, &QLineEdit::textChanged, &form, [&] { visible_while_set = editor.isVisible(); });
        editor.open(grid, 2, 1, grid.text(2, 1), CellEditor::Caret::at_start);
        QVERIFY(!visible_while_set);
        QVERIFY(editor.hasFocus());
        QCOMPARE(editor.geometry(), grid.cell_rect(2, 1));
        QTest::keyClicks(&editor, "1");
        QCOMPARE(editor.text(), "1750");
        editor.open(grid, 2, 0, "7", CellEditor::Caret::at_end);
        QTest::keyClicks(&editor, "5");
        QCOMPARE(editor.text(), "75");
    }
};

static const Registered<ControlsTest> registered;
#include "controls_test.moc"
