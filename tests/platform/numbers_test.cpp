#include "platform/numbers.h"

#include "platform/clock.h"
#include "support/run_all.h"

#include <limits>
#include <tuple>

class NumbersTest : public QObject {
    Q_OBJECT

private slots:
    void readers() {
        const std::tuple<QString, double, qint64> texts[]{
            {"", 0, 0},          {"1.250", 1.25, 1250},
            {"12,5", 12, 13},    {"1.250,5", 1.25, 1251},
            {"0,5", 0, 1},       {"-0,5", 0, -1},
            {".5", 0.5, 5},      {"-1.250,49", -1.25, -1250},
            {"1.2.3", 1.2, 123}, {"1,2,3", 1, 1},
            {"  42  ", 42, 42},  {"- 5", 0, 0},
            {"٣", 0, 0},         {"100000000000000000000000", 1e23, Money::limit}};
        for (const auto& [text, val, whole] : texts) {
            const bool right =
                numbers::val(text) == val && numbers::whole(text) == Money::units(whole) &&
                numbers::money(text) == Money::from_number(val) &&
                numbers::larger_of_readers(text) == std::max(Money::from_number(val), Money::units(whole));
            QVERIFY2(right, qPrintable("'" + text + "'"));
        }
        const QString nines(1000, u'9');
        QCOMPARE(numbers::val(nines), std::numeric_limits<double>::max());
        QCOMPARE(numbers::val("0." + QString(1000, u'0') + '1'), 0.0);
        QCOMPARE(numbers::whole(u'-' + nines), Money::units(-Money::limit));
        QCOMPARE(numbers::money("0." + nines), Money::units(1));
        QCOMPARE(numbers::whole("0," + nines), Money::units(1));
        QCOMPARE(numbers::money(QString(1000, u'0') + "12.34565"), Money::of_parts(123457));
        QCOMPARE(Money::from_number(std::numeric_limits<double>::infinity()), Money::units(Money::limit));
        QCOMPARE(Money::from_number(std::numeric_limits<double>::quiet_NaN()), Money());
    }

    void pictures() {
        const std::tuple<qint64, QString, QString> amounts[]{{0, "", ""},
                                                             {12'505'000, "1.250,5", "1251"},
                                                             {12'500'500, "1.250,05", "1250"},
                                                             {5'000, ",5", "1"},
                                                             {49, "", ""},
                                                             {50, ",01", ""},
                                                             {9'999'950, "1.000", "1000"},
                                                             {12'345'678'912'300, "1.234.567.891,23", "1234567891"},
                                                             {-12'505'000, "-1.250,5", "-1251"},
                                                             {-5'000, "-,5", "-1"}};
        for (const auto& [parts, picture, whole] : amounts) {
            QCOMPARE(numbers::picture(Money::of_parts(parts)), picture);
            QCOMPARE(numbers::whole_picture(Money::of_parts(parts)), whole);
        }
        const std::pair<double, QString> plain_texts[]{
            {-0.0, "0"}, {1250.0, "1250"}, {-0.05, "-0.05"}, {1e14, "100000000000000"}, {12.3456, "12.3456"}};
        for (const auto& [number, text] : plain_texts) {
            QCOMPARE(numbers::plain(number), text);
            QCOMPARE(numbers::plain(Money::from_number(number)), text);
        }
    }

    void money_is_rounded() {
        const std::tuple<double, int, int, int> amounts[]{
            {2.5, 3, 2, 2}, {-2.5, -3, -3, -2}, {2.4999, 2, 2, 2}, {-0.4999, 0, -1, 0}, {-3.0, -3, -3, -3}};
        for (const auto& [number, rounded, floor, truncated] : amounts) {
            const Money money = Money::from_number(number);
            QCOMPARE(money.rounded(), rounded);
            QCOMPARE(money.floor(), floor);
            QCOMPARE(money.truncated(), truncated);
            QCOMPARE(money.number(), number);
        }
    }

    void dates_are_cut_by_position() {
        QCOMPARE(dates::from_key("20260309"), QDate(2026, 3, 9));
        for (const QString no_date : {"", " ", "20260230", "2026039", "2026 309", "202603091"})
            QVERIFY(!dates::from_key(no_date).isValid());
        QCOMPARE(dates::shown(QString("20260309")), QString("09.03.2026"));
        QCOMPARE(dates::shown(QString(" ")), QString(".. "));
        QCOMPARE(dates::key_of_shown("09.03.2026"), QString("20260309"));
        QCOMPARE(dates::time_key(QTime(9, 5, 33)), QString("090533"));
        QCOMPARE(dates::short_time(QTime(9, 5, 33)), QString("09:05"));
    }
};

static const Registered<NumbersTest> registered;
#include "numbers_test.moc"
