#include "sample_money.h"

#include "platform/clock.h"
#include "rows.h"
#include "sample.h"
#include "school.h"
#include "tool_tests.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void make_school(const QStringList& terms, std::uint64_t seed, const sample::Scale& scale) {
    school::create(school::default_root, terms);
    sample::fill_reference(school::default_root);
    for (const QString& term : terms) sample::fill_term(school::default_root, term, seed, scale);
}

QByteArray whole_school(std::uint64_t seed) {
    const Drives drives;
    sample::Scale scale;
    scale.students = 40;
    make_school({u"2026"_s}, seed, scale);
    QByteArray text;
    for (const store::TableDef& table : store::catalogue(store::FileKind::term))
        text += rows::dump(rows::term, QString::fromStdString(table.name));
    for (const store::TableDef& table : store::catalogue(store::FileKind::reference))
        text += rows::dump(rows::reference, QString::fromStdString(table.name));
    return text + drives.bytes(u"c/okul/foto/2026_1001.bmp"_s);
}

}  // namespace

void SampleMoneyTest::due_dates_follow_the_months_data() {
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("31st") << QDate(2027, 1, 31)
                          << QStringList{u"20270131"_s, u"20270228"_s, u"20270331"_s, u"20270430"_s};
    QTest::newRow("30th, leap year") << QDate(2027, 12, 30)
                                     << QStringList{u"20271230"_s, u"20280130"_s, u"20280228"_s, u"20280330"_s};
    QTest::newRow("plain") << QDate(2026, 11, 5)
                           << QStringList{u"20261105"_s, u"20261205"_s, u"20270105"_s, u"20270205"_s};
}

void SampleMoneyTest::due_dates_follow_the_months() {
    QFETCH(QDate, first);
    QFETCH(QStringList, expected);
    QStringList keys;
    for (const QDate& date : sample::due_dates(first, 4)) keys.append(dates::key(date));
    QCOMPARE(keys, expected);
}

void SampleMoneyTest::same_seed_same_school() {
    const QByteArray first = whole_school(3);
    QVERIFY(first == whole_school(3));
    QVERIFY(first != whole_school(4));
}

void SampleMoneyTest::two_terms_share_the_cash_book() {
    const Drives drives;
    sample::Scale scale;
    scale.students = 30;
    scale.photos = 0;
    make_school({u"2026a"_s, u"2026b"_s}, 1, scale);
    qsizetype first = 0, second = 0;
    for (const rows::Record& cash : rows::all(rows::reference, "Kasa"))
        ++(cash[u"ACK"_s].text().endsWith(u"#2026a"_s) ? first : second);
    QVERIFY(first > 10 && second > 10);
    // The receipts of the second term go on behind those of the first.
    int highest = 0, lowest = 1'000'000;
    const auto numbers = [](const QString& term) {
        QList<int> result;
        for (const rows::Record& payment : rows::all(school::term_file(school::default_root, term), "Tahsilat"))
            if (payment[u"BTIP"_s].text() == u"M"_s) result.append(payment[u"BNO"_s].text().toInt());
        return result;
    };
    for (const int number : numbers(u"2026a"_s)) highest = std::max(highest, number);
    for (const int number : numbers(u"2026b"_s)) lowest = std::min(lowest, number);
    QCOMPARE(lowest, highest + 1);
}

void SampleMoneyTest::scale_sets_the_numbers_of_rows() {
    const Drives drives;
    sample::Scale scale;
    scale.students = 20;
    scale.instalments = 10;
    scale.absences = 100;
    scale.photos = 0;
    make_school({u"2026"_s}, 1, scale);
    QHash<qint64, int> instalments, absences;
    for (const rows::Record& row : rows::all(rows::term, "Odeme")) ++instalments[row[u"ONO"_s].whole_number()];
    for (const rows::Record& row : rows::all(rows::term, "Devam")) ++absences[row[u"ONO"_s].whole_number()];
    QCOMPARE(instalments.size(), 20);
    for (const int count : instalments) QCOMPARE(count, 10);
    QCOMPARE(absences.size(), 20);
    for (const int count : absences) QCOMPARE(count, 100);
}
