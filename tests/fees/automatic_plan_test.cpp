#include "fees/automatic_plan.h"

#include "support/run_all.h"

using namespace Qt::StringLiterals;

class AutomaticPlanTest : public QObject {
    Q_OBJECT

private slots:
    void discounts() {
        const auto left = [](qint64 fee, qint64 percent) -> qint64 {
            return after_discount(Money::units(fee), Money::of_parts(percent)).parts();
        };
        QCOMPARE(left(1000, 900000), qint64(1000000));  // a tenth stays whole
        QCOMPARE(left(999, 150000), qint64(8491500));
        QCOMPARE(left(1000, 125000), qint64(8750000));
        QCOMPARE(left(999999, 333333), qint64(6666663333));  // below a ten-thousandth
        QCOMPARE(left(1, 1000001), qint64(-1));
    }

    void amounts() {
        const auto split = [](int total, int count, double step) {
            const SplitAmounts both = split_amount(Money::units(total), count, Money::from_number(step));
            return u"%1, last %2"_s.arg(both.each.number()).arg(both.last.number());
        };
        QCOMPARE(split(10000, 3, 0), u"3333, last 3334"_s);
        QCOMPARE(split(10000, 3, 500), u"3500, last 3000"_s);
        QCOMPARE(split(10000, 4, 1000), u"2000, last 4000"_s);  // half a step goes down
        QCOMPARE(split(10004, 4, 1000), u"3000, last 1004"_s);
        QCOMPARE(split(100, 3, 2.5), u"32.5, last 35"_s);
        QCOMPARE(split(999, 1, 100), u"1000, last 999"_s);
    }

    void due_dates() {
        const auto dates = [](int year, int month, int day, int count) {
            return monthly_dates(QDate(year, month, day), count).join(u' ');
        };
        QCOMPARE(dates(2026, 8, 31, 7), u"20260831 20260930 20261031 20261130 20261231 20270131 20270228"_s);
        QCOMPARE(dates(2028, 1, 29, 3), u"20280129 20280228 20280329"_s);  // leap years do not count
        QCOMPARE(dates(2028, 2, 29, 3), u"20280229 20280329 20280429"_s);
        QCOMPARE(dates(2026, 12, 5, 2), u"20261205 20270105"_s);
        QCOMPARE(dates(9999, 12, 31, 1'000'000'000), u"99991231"_s);
    }
};

static const Registered<AutomaticPlanTest> registered;
#include "automatic_plan_test.moc"
