#include "collections_tests.h"
#include "till.h"

#include <QTest>

namespace {

// Three instalments that are 2.750 together.
void three_instalments() {
    School::instalment("20261001", 1000);
    School::instalment("20261101", 500);
    School::instalment("20261201", 1250);
}

QStringList chosen(const Till& till, int row) {
    QStringList cells;
    for (int column = 0; column < 5; ++column) cells << till.kurvo.FTahsil_TABLO4->text(row, column);
    return cells;
}

std::vector<bool> enabled(const std::vector<QWidget*>& controls) {
    std::vector<bool> all;
    for (const QWidget* control : controls) all.push_back(control->isEnabled());
    return all;
}

}  // namespace

void CollectionScreenTest::panel_needs_a_student() {
    School school;
    Till till;
    till.press(till.kurvo.CommandTAHSILAT);
    QVERIFY(!till.kurvo.Frame_Tahsil->isVisible());
    till.pick();
    QVERIFY(till.kurvo.Frame_Tahsil->isVisible());
    QVERIFY(!till.kurvo.CommandOK->isVisible() && !till.kurvo.CommandGERI->isVisible());
}

void CollectionScreenTest::clicks_take_whole_instalments() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    till.click_row(2);
    till.click_row(0);
    QCOMPARE(till.marks(), QStringList({"X1000", "", "X1250"}));
    QCOMPARE(till.kurvo.ODENEN->text(), "2.250");
    QCOMPARE(till.kurvo.KASAODENEN->text(), "2250");

    till.click_row(2);
    QCOMPARE(till.marks(), QStringList({"X1000", "", ""}));
    till.click_row(0);
    QCOMPARE(till.kurvo.ODENEN->text(), QString());
    QCOMPARE(till.kurvo.KASAODENEN->text(), "0");
}

void CollectionScreenTest::typed_amounts_spread_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("marks");
    QTest::addColumn<QString>("odenen");  // KASAODENEN too
    QTest::newRow("one digit") << "1" << QStringList({"X1", "", ""}) << "1";
    QTest::newRow("exactly the first") << "1000" << QStringList({"X1000", "", ""}) << "1000";
    QTest::newRow("one more") << "1001" << QStringList({"X1000", "X1", ""}) << "1001";
    QTest::newRow("exactly two") << "1500" << QStringList({"X1000", "X500", ""}) << "1500";
    QTest::newRow("all") << "2750" << QStringList({"X1000", "X500", "X1250"}) << "2750";
    QTest::newRow("with its point") << "2.750" << QStringList({"X1000", "X500", "X1250"}) << "2.750";
    QTest::newRow("more than the debt") << "2751" << QStringList({"X1000", "X500", "X1250"}) << "2750";
    QTest::newRow("taken back") << "1600<<" << QStringList({"X16", "", ""}) << "16";
    QTest::newRow("emptied") << "7<" << QStringList({"", "", ""}) << "";
    QTest::newRow("half a unit up") << "12,5" << QStringList({"X13", "", ""}) << "12,5";
    QTest::newRow("half a unit too much") << "2750,5" << QStringList({"X1000", "X500", "X1250"}) << "2750";
    QTest::newRow("point groups") << "27.5" << QStringList({"X275", "", ""}) << "27.5";
    QTest::newRow("letters behind") << "1234abc" << QStringList({"X1000", "X234", ""}) << "1234abc";
    QTest::newRow("letters behind too much") << "2751a" << QStringList({"X1000", "X500", "X1250"}) << "2750a";
    QTest::newRow("no number") << "abc" << QStringList({"", "", ""}) << "abc";
    QTest::newRow("below zero") << "-5" << QStringList({"", "", ""}) << "-5";
}

void CollectionScreenTest::typed_amounts_spread() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    QFETCH(QString, keys);
    till.type_amount(keys);
    QTEST(till.marks(), "marks");
    QTEST(till.kurvo.ODENEN->text(), "odenen");
    QTEST(till.kurvo.KASAODENEN->text(), "odenen");
}

void CollectionScreenTest::odd_debts_end_data() {
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("others");  // two more instalments
    QTest::addColumn<double>("first_paid");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("marks");
    QTest::addColumn<QString>("odenen");
    QTest::newRow("no debt") << 10.0 << 0.0 << 10.0 << "5" << QStringList() << "";
    QTest::newRow("paid too much") << 10.0 << 2.0 << 20.0 << "5" << QStringList({"", ""}) << "";
    // 300 in whole units of a debt of 301,2: the second walk begins anew at the first row.
    QTest::newRow("rounded off") << 100.4 << 100.4 << 0.0 << "301" << QStringList({"X1", "", ""}) << "301";
    QTest::newRow("nothing but fractions") << 0.4 << 0.4 << 0.0 << "1" << QStringList({"X0", "X0", "X0"}) << "1";
}

void CollectionScreenTest::odd_debts_end() {
    QFETCH(double, first);
    QFETCH(double, others);
    QFETCH(double, first_paid);
    QFETCH(QString, keys);
    School school;
    school.instalment("20261001", first, first_paid);
    school.instalment("20261101", others);
    school.instalment("20261201", others);
    Till till;
    till.pick();
    till.type_amount(keys);
    QTEST(till.marks(), "marks");
    QTEST(till.kurvo.ODENEN->text(), "odenen");
}

void CollectionScreenTest::other_cash_types_are_typed_by_the_clerk() {
    School school;
    three_instalments();
    Till till;
    till.kurvo.ComboKASATIP->setCurrentIndex(1);
    till.pick();
    till.type_amount("100");
    till.click_row(1);
    QCOMPARE(till.kurvo.KASAODENEN->text(), QString());
}

void CollectionScreenTest::second_stage_holds_the_student() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    till.begin_second_stage();
    QVERIFY(!till.kurvo.FTahsil_Frame1->isVisible());  // nothing is marked

    const std::vector<QWidget*> held{till.kurvo.CommandYENI, till.kurvo.CommandTAHSILAT, till.kurvo.CommandDEVAMSIZLIK,
                                     till.kurvo.CommandETUD, till.kurvo.CommandNOT,      till.kurvo.CommandTOPLU,
                                     till.kurvo.CommandSBUL, till.kurvo.CommandDOSYADAN, till.kurvo.TABLO,
                                     till.kurvo.bslk[0],     till.kurvo.bslk[1],         till.kurvo.bslk[2],
                                     till.kurvo.LONO,        till.kurvo.SDONEM,          till.kurvo.ODENEN,
                                     till.kurvo.KASAODENEN};
    const std::vector<bool> before = enabled(held);
    till.type_amount("1200");
    till.begin_second_stage();
    QVERIFY(till.kurvo.FTahsil_Frame1->isVisible() && !till.kurvo.CommandTAHSIL->isVisible());
    QCOMPARE(chosen(till, 0), QStringList({" Vade Tarihi", " Tutar", " Ödeme Şekli", " Açıklama", " Ödenen"}));
    QCOMPARE(chosen(till, 1), QStringList({"01.10.2026", "Nakit", " ", "1.000", "1000"}));
    QCOMPARE(chosen(till, 2), QStringList({"01.11.2026", "Nakit", " ", "500", "200"}));
    QCOMPARE(till.kurvo.FTahsil_TABLO4->rows(), 3);

    QCOMPARE(enabled(held), std::vector<bool>(held.size(), false));
    QTest::keyClick(&till.kurvo, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(till.kurvo.Frame_Tahsil->isVisible());

    till.press(till.kurvo.CommandGERI);
    QCOMPARE(enabled(held), before);
    QVERIFY(till.kurvo.CommandTAHSIL->isVisible() && !till.kurvo.CommandOK->isVisible());
    // Not SDONEM, where the next arrow key would change the term.
    QVERIFY(till.kurvo.FTahsil_Tablo2->hasFocus());
}

// The button that posts takes the place of the one that leads there, right under the pointer.
void CollectionScreenTest::double_click_posts_nothing() {
    const School school;
    three_instalments();
    Till till;
    till.pick();
    till.type_amount("1200");
    const QPoint at = till.kurvo.CommandTAHSIL->mapTo(&till.kurvo, till.kurvo.CommandTAHSIL->rect().center());
    QTest::mouseDClick(till.kurvo.windowHandle(), Qt::LeftButton, {}, at);
    QVERIFY(till.kurvo.FTahsil_Frame1->isVisible());
    QVERIFY(till.kurvo.CommandOK->geometry().contains(till.kurvo.CommandOK->parentWidget()->mapFrom(&till.kurvo, at)));
    QCOMPARE(School::tahsilat(), QStringList());
    QTest::mouseClick(till.kurvo.windowHandle(), Qt::LeftButton, {}, at);
    QCOMPARE(School::tahsilat().size(), 2);
}

void CollectionScreenTest::corrections_and_the_way_back() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    till.click_row(0);
    till.click_row(2);
    till.begin_second_stage();
    till.correct(2, {});  // the cell's text as it stands
    QCOMPARE(till.kurvo.Cel_In->text(), "1250");
    till.correct(2, "12000");  // clipped to 1.250 at the fifth key
    QCOMPARE(till.kurvo.Cel_In->text(), "1.250");
    till.correct(1, "400");
    QVERIFY(till.kurvo.Cel_In->isVisible());
    QCOMPARE(chosen(till, 1).last(), "400");
    QCOMPARE(chosen(till, 2).last(), "1.250");
    QCOMPARE(till.kurvo.ODENEN->text(), "1.650");
    QCOMPARE(till.kurvo.KASAODENEN->text(), "1.650");

    // The sum of what is open, not of what was typed; the marks stay.
    till.press(till.kurvo.CommandGERI);
    QCOMPARE(till.kurvo.ODENEN->text(), "2.250");
    QCOMPARE(till.marks(), QStringList({"X1000", "", "X1250"}));
    QVERIFY(!till.kurvo.Cel_In->isVisible());
}

void CollectionScreenTest::corrections_spread_again_after_typing() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    till.type_amount("1200");
    till.begin_second_stage();
    till.correct(1, "300");
    QCOMPARE(till.kurvo.ODENEN->text(), "500");
    QCOMPARE(till.marks(), QStringList({"X500", "", ""}));
    till.press(till.kurvo.CommandGERI);
    QCOMPARE(till.kurvo.ODENEN->text(), "1.500");
    QCOMPARE(till.kurvo.KASAODENEN->text(), "1.500");
    QCOMPARE(till.marks(), QStringList({"X1000", "X500", ""}));
}

void CollectionScreenTest::documents_propose_the_next_number() {
    School school;
    three_instalments();
    school.add(School::reference_file, "Belgeno", {{"SERI", "F"}, {"SNO", 41}});
    Till till;
    till.pick();
    till.type_amount("100");
    till.begin_second_stage();
    till.correct(1, "90");
    till.press(till.kurvo.MOP);
    QVERIFY(!till.kurvo.Cel_In->isVisible());
    QCOMPARE(till.kurvo.FTahsil_BNO->text(), "1");

    till.press(till.kurvo.FOP);
    QCOMPARE(till.kurvo.FTahsil_BNO->text(), "42");
    QVERIFY(till.kurvo.FTahsil_Frame2->isVisible());
    QVERIFY(!till.kurvo.CommandOK->isVisible() && !till.kurvo.CommandGERI->isVisible());
    QVERIFY(!till.kurvo.FTahsil_BNO->isEnabled() && !till.kurvo.MOP->isEnabled());
    till.press(till.kurvo.CommandOK2);
    QVERIFY(till.kurvo.CommandOK->isVisible() && till.kurvo.MOP->isEnabled());
    QVERIFY(till.kurvo.FTahsil_BNO->hasFocus());

    // The next collection begins without a choice.
    till.press(till.kurvo.CommandGERI);
    till.begin_second_stage();
    QVERIFY(!till.kurvo.FOP->isChecked());
    QCOMPARE(till.kurvo.FTahsil_BNO->text(), QString());
}

void CollectionScreenTest::term_switch_ends_the_second_stage() {
    School school;
    three_instalments();
    Till till;
    till.pick();
    till.type_amount("100");
    till.begin_second_stage();
    till.press(till.kurvo.FOP);
    till.terms.donem_degistir();
    QVERIFY(!till.kurvo.FTahsil_Frame1->isVisible() && !till.kurvo.FTahsil_Frame2->isVisible());
    QVERIFY(till.kurvo.LONO->isEnabled() && till.kurvo.MOP->isEnabled());
    QCOMPARE(till.kurvo.FTahsil_TABLO4->rows(), 1);
    QCOMPARE(till.kurvo.FTahsil_Tablo2->rows(), 0);
    QCOMPARE(till.kurvo.ODENEN->text() + till.kurvo.KASAODENEN->text(), QString());
    QCOMPARE(school.failures, QStringList());
}
