#include "fees/automatic_plan.h"

#include "fees_tests.h"

#include <QTest>

void AutomaticPlanTest::discounts_data() {
    QTest::addColumn<qint64>("fee");
    QTest::addColumn<qint64>("percent");  // ten-thousandths
    QTest::addColumn<qint64>("left");     // ten-thousandths
    QTest::newRow("a tenth stays whole") << qint64(1000) << qint64(900000) << qint64(1000000);
    QTest::newRow("cents stay") << qint64(999) << qint64(150000) << qint64(8491500);
    QTest::newRow("half a percent") << qint64(1000) << qint64(125000) << qint64(8750000);
    QTest::newRow("below a ten-thousandth") << qint64(999999) << qint64(333333) << qint64(6666663333);
    QTest::newRow("all") << qint64(1000) << qint64(1000000) << qint64(0);
    QTest::newRow("more than all, down") << qint64(1) << qint64(1000001) << qint64(-1);
    QTest::newRow("largest fee") << qint64(Money::limit) << qint64(500000) << qint64(Money::limit * 5000);
    QTest::newRow("beyond sense") << qint64(100) << qint64(99'000'000'000) << qint64(-1000000);
}

void AutomaticPlanTest::discounts() {
    QFETCH(const qint64, fee);
    QFETCH(const qint64, percent);
    QFETCH(const qint64, left);
    QCOMPARE(after_discount(Money::units(fee), Money::of_parts(percent)).parts(), left);
}

void AutomaticPlanTest::amounts_data() {
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("each");
    QTest::addColumn<double>("last");
    QTest::newRow("no step") << 10000 << 3 << 0.0 << 3333.0 << 3334.0;
    QTest::newRow("last is larger") << 10000 << 3 << 100.0 << 3300.0 << 3400.0;
    QTest::newRow("last is smaller") << 10000 << 3 << 500.0 << 3500.0 << 3000.0;
    QTest::newRow("half a step goes down") << 10000 << 4 << 1000.0 << 2000.0 << 4000.0;
    QTest::newRow("just above half") << 10004 << 4 << 1000.0 << 3000.0 << 1004.0;
    QTest::newRow("step of an odd size") << 100 << 3 << 2.5 << 32.5 << 35.0;
    QTest::newRow("step larger than twice the rate") << 100 << 4 << 60.0 << 0.0 << 100.0;
    QTest::newRow("one instalment is the total") << 999 << 1 << 100.0 << 1000.0 << 999.0;
    QTest::newRow("more instalments than money") << 2 << 3 << 0.0 << 0.0 << 2.0;
}

void AutomaticPlanTest::amounts() {
    QFETCH(const int, total);
    QFETCH(const int, count);
    QFETCH(const double, step);
    const SplitAmounts split = split_amount(Money::units(total), count, Money::from_number(step));
    QTEST(split.each.number(), "each");
    QTEST(split.last.number(), "last");
}

void AutomaticPlanTest::due_dates_data() {
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const char* name, QDate first, const char* keys) {
        QTest::newRow(name) << first << QString::fromLatin1(keys).split(u' ');
    };
    row("31st", QDate(2027, 1, 31), "20270131 20270228 20270331 20270430 20270531 20270630");
    row("31st over the year", QDate(2026, 8, 31), "20260831 20260930 20261031 20261130 20261231 20270131");
    row("30th", QDate(2027, 1, 30), "20270130 20270228 20270330");
    row("leap years do not count", QDate(2028, 1, 29), "20280129 20280228 20280329");
    row("first one in a leap year", QDate(2028, 2, 29), "20280229 20280329 20280429");
    row("28th", QDate(2028, 1, 28), "20280128 20280228 20280328");
    row("one digit", QDate(2026, 12, 5), "20261205 20270105");
}

void AutomaticPlanTest::due_dates() {
    QFETCH(const QDate, first);
    QFETCH(const QStringList, keys);
    QCOMPARE(monthly_dates(first, keys.size()), keys);
    QCOMPARE(monthly_dates(QDate(9999, 12, 31), 1'000'000'000), QStringList{QStringLiteral("99991231")});
}
