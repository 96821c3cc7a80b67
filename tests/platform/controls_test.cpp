#include "platform/date_picker.h"
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
};

static const Registered<ControlsTest> registered;
#include "controls_test.moc"
