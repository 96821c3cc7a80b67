#include "platform/numbers.h"

#include "base_tests.h"
#include "platform/clock.h"

#include <QTest>

#include <limits>

void NumbersTest::readers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("val");
    QTest::addColumn<qint64>("whole");
    const auto row = [](const char* text, double val, qint64 whole) {
        QTest::newRow(qPrintable(QString("'%1'").arg(text))) << QString(text) << val << whole;
    };
    row("", 0, 0);
    row("   ", 0, 0);
    row("1250", 1250, 1250);
    row("1.250", 1.25, 1250);
    row("1.250,5", 1.25, 1251);
    row("12,5", 12, 13);
    row("12,4999999", 12, 12);
    row("0,5", 0, 1);
    row("-0,5", 0, -1);
    row(",5", 0, 1);
    row(".5", 0.5, 5);
    row("-1.250,49", -1.25, -1250);
    row("+7", 7, 7);
    row("1.2.3", 1.2, 123);
    row("1234abc", 1234, 1234);
    row("12.5 TL", 12.5, 13);
    row("-12.5x", -12.5, -13);
    row("1,2,3", 1, 1);
    row("  42  ", 42, 42);
    row("- 5", 0, 0);
    row("-", 0, 0);
    row(",", 0, 0);
    row("abc", 0, 0);
    row("1e3", 1, 1);
    row("٣", 0, 0);
    row("100000000000000000000000", 1e23, Money::limit);
}

void NumbersTest::readers() {
    QFETCH(QString, text);
    QFETCH(double, val);
    QFETCH(qint64, whole);
    QCOMPARE(numbers::val(text), val);
    QCOMPARE(numbers::whole(text), Money::units(whole));
    QCOMPARE(numbers::money(text), Money::from_number(val));
    QCOMPARE(numbers::larger_of_readers(text), std::max(Money::from_number(val), Money::units(whole)));
}

void NumbersTest::huge_texts_end() {
    const QString nines(1000, u'9');
    QCOMPARE(numbers::val(nines), std::numeric_limits<double>::max());
    QCOMPARE(numbers::val(u'-' + nines), std::numeric_limits<double>::lowest());
    QCOMPARE(numbers::val("0." + QString(1000, u'0') + '1'), 0.0);
    QCOMPARE(numbers::whole(u'-' + nines), Money::units(-Money::limit));
    QCOMPARE(numbers::money("0." + nines), Money::units(1));
    QCOMPARE(numbers::whole("0," + nines), Money::units(1));
    QCOMPARE(numbers::money(QString(1000, u'0') + "12.34565"), Money::of_parts(123457));
    QCOMPARE(Money::from_number(std::numeric_limits<double>::infinity()), Money::units(Money::limit));
    QCOMPARE(Money::from_number(std::numeric_limits<double>::quiet_NaN()), Money());
}

void NumbersTest::pictures_data() {
    QTest::addColumn<qint64>("parts");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("whole");
    const auto row = [](qint64 parts, const char* picture, const char* whole) {
        QTest::newRow(qPrintable(QString::number(parts))) << parts << QString(picture) << QString(whole);
    };
    row(0, "", "");
    row(12'500'000, "1.250", "1250");
    row(12'505'000, "1.250,5", "1251");
    row(12'500'500, "1.250,05", "1250");
    row(5'000, ",5", "1");
    row(4'900, ",49", "");
    row(49, "", "");
    row(50, ",01", "");
    row(9'990'000, "999", "999");
    row(9'999'950, "1.000", "1000");
    row(12'345'678'912'300, "1.234.567.891,23", "1234567891");
    row(-12'505'000, "-1.250,5", "-1251");
    row(-5'000, "-,5", "-1");
    row(-49, "", "");
}

void NumbersTest::pictures() {
    QFETCH(qint64, parts);
    QFETCH(QString, picture);
    QFETCH(QString, whole);
    QCOMPARE(numbers::picture(Money::of_parts(parts)), picture);
    QCOMPARE(numbers::whole_picture(Money::of_parts(parts)), whole);
}

void NumbersTest::money_is_rounded_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<qint64>("rounded");
    QTest::addColumn<qint64>("floor");
    QTest::addColumn<qint64>("truncated");
    QTest::newRow("half") << 2.5 << qint64(3) << qint64(2) << qint64(2);
    QTest::newRow("negative half") << -2.5 << qint64(-3) << qint64(-3) << qint64(-2);
    QTest::newRow("below half") << 2.4999 << qint64(2) << qint64(2) << qint64(2);
    QTest::newRow("negative below half") << -0.4999 << qint64(0) << qint64(-1) << qint64(0);
    QTest::newRow("negative whole") << -3.0 << qint64(-3) << qint64(-3) << qint64(-3);
}

void NumbersTest::money_is_rounded() {
    QFETCH(double, number);
    const Money money = Money::from_number(number);
    QTEST(qint64(money.rounded()), "rounded");
    QTEST(qint64(money.floor()), "floor");
    QTEST(qint64(money.truncated()), "truncated");
    QCOMPARE(money.number(), number);
}

void NumbersTest::plain_digits_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0.0 << "0";
    QTest::newRow("negative nothing") << -0.0 << "0";
    QTest::newRow("whole") << 1250.0 << "1250";
    QTest::newRow("decimals") << -0.05 << "-0.05";
    QTest::newRow("no exponent") << 1e14 << "100000000000000";
    QTest::newRow("all decimals") << 12.3456 << "12.3456";
}

void NumbersTest::plain_digits() {
    QFETCH(double, number);
    QFETCH(QString, text);
    QCOMPARE(numbers::plain(number), text);
    QCOMPARE(numbers::plain(Money::from_number(number)), text);
}

void NumbersTest::dates_are_cut_by_position() {
    QCOMPARE(dates::key(QDate(2026, 3, 9)), QString("20260309"));
    QCOMPARE(dates::from_key("20260309"), QDate(2026, 3, 9));
    for (const QString no_date : {"", " ", "20260230", "2026039", "2026 309", "202603091"})
        QVERIFY(!dates::from_key(no_date).isValid());
    QCOMPARE(dates::shown(QString("20260309")), QString("09.03.2026"));
    QCOMPARE(dates::shown(QDate(2026, 3, 9)), QString("09.03.2026"));
    QCOMPARE(dates::shown(QString(" ")), QString(".. "));
    QCOMPARE(dates::key_of_shown("09.03.2026"), QString("20260309"));
    QCOMPARE(dates::time_key(QTime(9, 5, 33)), QString("090533"));
    QCOMPARE(dates::short_time(QTime(9, 5, 33)), QString("09:05"));
}

void NumbersTest::clock_can_be_set() {
    const QDateTime first(QDate(2026, 2, 28), QTime(23, 59, 59));
    const clock_source::Override outer([&] { return first; });
    {
        const clock_source::Override inner([&] { return first.addSecs(1); });
        QCOMPARE(clock_source::today(), QDate(2026, 3, 1));
    }
    QCOMPARE(clock_source::now(), first);
}
