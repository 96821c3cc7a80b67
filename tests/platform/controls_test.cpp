#include "control_tests.h"
#include "platform/cell_editor.h"
#include "platform/date_picker.h"
#include "platform/elided_label.h"
#include "platform/grid_view.h"

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

void ControlsTest::date_is_typed_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");
    QTest::newRow("a whole date") << "20260115"
                                  << "07092026"
                                  << "20260907";
    QTest::newRow("the last of a longer month") << "20260210"
                                                << "31032027"
                                                << "20270331";
    QTest::newRow("into a shorter month") << "20260131"
                                          << "28022026"
                                          << "20260228";
    QTest::newRow("with points") << "20261231"
                                 << "5.6.2027"
                                 << "20270605";
    QTest::newRow("the day alone") << "20261015"
                                   << "22"
                                   << "20261022";
    QTest::newRow("a short year") << "20260115"
                                  << "0102.27"
                                  << "20270201";
    QTest::newRow("half a year") << "20260115"
                                 << "0102202"
                                 << "20260201";
    QTest::newRow("no such day") << "20260115"
                                 << "31.4."
                                 << "20260430";
    QTest::newRow("a wrong digit taken back") << "20260115"
                                              << "03\b05"
                                              << "20260503";
    QTest::newRow("a leap day") << "20260301"
                                << "29022028"
                                << "20280229";
}

void ControlsTest::date_is_typed() {
    QFETCH(QString, before);
    QFETCH(QString, typed);
    QFETCH(QString, after);
    QWidget form;
    QVBoxLayout column(&form);
    QLineEdit box;
    DatePicker day;
    column.addWidget(&box);
    column.addWidget(&day);
    day.set_key(before);
    form.show();
    form.activateWindow();
    box.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(&box, Qt::Key_Tab);
    QTest::keyClicks(&day, typed);
    QTest::keyClick(&day, Qt::Key_Tab);
    QCOMPARE(day.key(), after);
    QCOMPARE(day.text(), QStringLiteral("%1.%2.%3").arg(after.mid(6, 2), after.mid(4, 2), after.mid(0, 4)));
    QVERIFY(!day.hasFocus());
}

void ControlsTest::date_changes_once() {
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

void ControlsTest::date_parts_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("result");
    QTest::newRow("possible") << "20280229"
                              << "20280229";
    QTest::newRow("no such day") << "20260231"
                                 << "20260228";
    QTest::newRow("no month") << "20260015"
                              << "20260115";
    QTest::newRow("no day") << "20260500"
                            << "20260501";
    QTest::newRow("month 13") << "20261301"
                              << "20261201";
}

void ControlsTest::date_parts() {
    QFETCH(QString, key);
    DatePicker day;
    day.set_key("20260831");
    day.set_key(key);
    QTEST(day.key(), "result");
}

void ControlsTest::editor_lies_over_the_cell() {
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
    QVERIFY(!editor.isVisible());

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

void ControlsTest::long_name_moves_nothing() {
    ElidedLabel label;
    label.setText("AYŞE");
    const QSize before = label.sizeHint();
    label.setText(QString(200, u'A'));
    QCOMPARE(label.sizeHint(), before);
    // Painted as a short text with a sign at its end, not cut by the edge.
    label.resize(100, 24);
    const QImage long_text = label.grab().toImage();
    label.setText(label.fontMetrics().elidedText(label.text(), Qt::ElideRight, 100));
    QCOMPARE(label.grab().toImage(), long_text);
}
