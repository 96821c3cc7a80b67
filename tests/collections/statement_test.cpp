#include "collections_tests.h"
#include "till.h"

#include <QTest>

void StatementTest::open_instalments_stand_in_order_of_their_dates() {
    School school;
    school.instalment("20261201", 1250.5);
    school.instalment("20261001", 1000, 400);
    school.instalment("20261101", 500, 500);
    school.add(School::term_file, "Odeme",
               {{"ONO", 1250}, {"VADE", "20270101"}, {"TUTAR", 300}, {"ODENEN", 0}, {"ACK", "servis"}, {"ODSEK", 6}});
    school.instalment("20260901", 70, 0, 1249);
    school.instalment("20260901", 80, 0, 1251);
    Till till;
    till.pick();

    const GridView& grid = *till.kurvo.FTahsil_Tablo2;
    QStringList shown;
    for (int row = 0; row < grid.rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.columns(); ++column) cells << grid.text(row, column);
        shown << cells.join(u'|');
    }
    QCOMPARE(shown, QStringList({" |01.10.2026|600|Nakit| | |", " |01.12.2026|1.250,5|Nakit| | |",
                                 " |01.01.2027|300|İptal|servis||"}));
    QVERIFY(grid.isColumnHidden(5));
}

void StatementTest::totals_data() {
    using Amounts = std::vector<std::pair<double, double>>;
    QTest::addColumn<Amounts>("amounts");
    QTest::addColumn<QStringList>("totals");  // TTUTAR, TODENEN, TBORC
    QTest::addColumn<int>("open");
    QTest::newRow("no instalments") << Amounts{} << QStringList({"0", "0", "0"}) << 0;
    QTest::newRow("all paid") << Amounts{{1000, 1000}, {1500, 1500}} << QStringList({"2500", "2500", ""}) << 0;
    QTest::newRow("part paid") << Amounts{{1000, 1000}, {1500, 250}} << QStringList({"2500", "1250", "1.250"}) << 1;
    QTest::newRow("fractions") << Amounts{{100.25, 0}, {0.5, 0.2}} << QStringList({"100.75", "0.2", "100,55"}) << 2;
    // 1.1 + 2.2 is more than 3.3 in binary fractions.
    QTest::newRow("no binary remainder") << Amounts{{1.1 + 2.2, 3.3}} << QStringList({"3.3", "3.3", ""}) << 0;
    QTest::newRow("paid too much") << Amounts{{100, 300}, {50, 0}} << QStringList({"150", "300", "-150"}) << 1;
}

void StatementTest::totals() {
    using Amounts = std::vector<std::pair<double, double>>;
    QFETCH(Amounts, amounts);
    School school;
    int day = 20261001;
    for (const auto& [tutar, odenen] : amounts) school.instalment(QString::number(day++), tutar, odenen);
    school.instalment("20261001", 9, 0, 1251);
    Till till;
    till.kurvo.ODENEN->setText("55");
    till.pick();
    QTEST(QStringList({till.kurvo.TTUTAR->text(), till.kurvo.TODENEN->text(), till.kurvo.TBORC->text()}), "totals");
    QTEST(till.kurvo.FTahsil_Tablo2->rows(), "open");
    QCOMPARE(till.kurvo.ODENEN->text(), QString());
}

void StatementTest::nothing_is_shown_without_the_right() {
    School school;
    school.instalment("20261001", 1000);
    Till till;
    till.session.collectionsAllowed = 0;
    till.pick();
    QCOMPARE(till.kurvo.FTahsil_Tablo2->rows(), 0);
    QCOMPARE(till.kurvo.TBORC->text(), QString());
}
