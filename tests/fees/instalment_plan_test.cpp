#include "fees_tests.h"
#include "plan_desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString grid_row(const GridView& grid, int row) {
    QStringList texts;
    for (int column = 0; column < grid.columns(); ++column) texts << grid.text(row, column);
    return texts.join(u'|');
}

// Two unpaid instalments around one that 300 was paid on.
std::vector<Instalment> three_instalments() {
    return {{u"20261001"_s, 1000}, {u"20261101"_s, 1000, 300}, {u"20261201"_s, 1000}};
}

}  // namespace

void InstalmentPlanTest::refill_shows_plan_and_totals() {
    PlanDesk desk(
        {{u"20261001"_s, 2500.5}, {u"20261101"_s, 8000, 1250.5, 0}, {u"20261123"_s, 10, 0, 6}, {u"20261124"_s, 700}});
    QCOMPARE(desk.form.TABLO2->rows(), 4);
    QCOMPARE(grid_row(*desk.form.TABLO2, 0), u"1|01.10.2026|2.500,5|Nakit|elden|0"_s);
    QCOMPARE(grid_row(*desk.form.TABLO2, 1), u"2|01.11.2026|8.000|Senet|elden|1250.5"_s);
    QCOMPARE(desk.form.YBORC->text(), u"11210.5"_s);
    QCOMPARE(desk.form.YODENEN->text(), u"1250.5"_s);
    QCOMPARE(desk.form.YKALAN->text(), u"9960"_s);
    // What falls due today is not overdue, what was cancelled is.
    QCOMPARE(desk.form.YGECIKEN->text(), u"9260"_s);
    QCOMPARE(desk.form.TFARK->text(), u"-1.210,5"_s);

    desk.form.KTUTAR->setEnabled(false);
    desk.plan.taksit_listele();
    QVERIFY(!desk.form.KTUTAR->isEnabled());
    desk.form.ONO->setText(u"1248"_s);
    desk.plan.taksit_listele();
    QCOMPARE(desk.form.TABLO2->rows(), 0);
    QCOMPARE(desk.form.YBORC->text() + desk.form.TFARK->text(), u"010.000"_s);
    QVERIFY(desk.form.KTUTAR->isEnabled());
}

void InstalmentPlanTest::first_instalment_stores_the_student() {
    PlanDesk desk;
    desk.student_stored = false;
    desk.form.ODSEK->setCurrentIndex(3);
    desk.enter(u"20270115"_s, u"1250,75"_s);
    PlanDesk::press(desk.form.CommandEKLE);
    QCOMPARE(desk.rows_when_stored, QStringList{u"20270115 1250/0"_s});
    QCOMPARE(desk.row(u"20270115"_s, "ODSEK"), u"3"_s);
    QCOMPARE(desk.row(u"20270115"_s, "ACK"), u" "_s);
    QCOMPARE(desk.row(u"20270115"_s, "CYER"), u" "_s);
    QVERIFY(desk.form.VADE->hasFocus());
    QCOMPARE(desk.form.VADE->key(), u"20270115"_s);
    QCOMPARE(desk.form.Sno->text() + desk.form.TUTAR->text() + desk.form.ACK->text(), QString());

    desk.enter(u"20270215"_s, u"12.5"_s);
    PlanDesk::press(desk.form.CommandEKLE);
    QCOMPARE(desk.rows_when_stored.size(), 1);
    QCOMPARE(desk.rows(), QStringList({u"20270115 1250/0"_s, u"20270215 12.5/0"_s}));
    QCOMPARE(desk.form.YBORC->text(), u"1262.5"_s);
}

void InstalmentPlanTest::rows_are_changed_and_moved_data() {
    QTest::addColumn<int>("chosen");  // -1: none
    QTest::addColumn<QString>("vade");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<QString>("rows");
    const QString before = u"20261001 1000/0 20261101 1000/300 20261201 1000/0"_s;
    const QString paid_date = u"Ödemesi olan taksit tarihi değiştirilemez."_s;
    const QString below = u"Tutar Ödenenden küçük olamaz"_s;
    QTest::newRow("amount of a paid one") << 1 << "20261101"
                                          << "300"
                                          << ""
                                          << "20261001 1000/0 20261101 300/300 20261201 1000/0";
    QTest::newRow("below what is paid") << 1 << "20261101"
                                        << "299" << below << before;
    QTest::newRow("moved to a free date") << 0 << "20261224"
                                          << "900"
                                          << ""
                                          << "20261101 1000/300 20261201 1000/0 20261224 900/0";
    QTest::newRow("moved onto another") << 0 << "20261201"
                                        << "900"
                                        << ""
                                        << "20261101 1000/300 20261201 900/0";
    QTest::newRow("moved onto a paid one") << 0 << "20261101"
                                           << "400"
                                           << ""
                                           << "20261101 400/300 20261201 1000/0";
    QTest::newRow("refused by a paid one") << 0 << "20261101"
                                           << "200" << below << before;
    QTest::newRow("paid one stays on its date") << 1 << "20261102"
                                                << "1000" << paid_date << before;
    QTest::newRow("new one on a paid date") << -1 << "20261101"
                                            << "200" << below << before;
    QTest::newRow("new one on its own date") << -1 << "20270101"
                                             << "200"
                                             << "" << before + u" 20270101 200/0"_s;
}

void InstalmentPlanTest::rows_are_changed_and_moved() {
    QFETCH(const int, chosen);
    QFETCH(const QString, vade);
    QFETCH(const QString, amount);
    QFETCH(const QString, refusal);
    PlanDesk desk(three_instalments());
    if (chosen >= 0) {
        desk.click_row(chosen);
        QVERIFY(desk.form.VADE->hasFocus());
        QCOMPARE(desk.form.Sno->text(), QString::number(chosen + 1));
        QCOMPARE(desk.form.TUTAR->text() + desk.form.ODSEK->currentText() + desk.form.ACK->text(), u"1000Nakitelden"_s);
    }
    if (!refusal.isEmpty()) desk.prompts.expect(refusal);
    desk.enter(vade, amount);
    PlanDesk::press(desk.form.CommandEKLE);
    QTEST(desk.rows().join(u' '), "rows");
    QCOMPARE(desk.form.TUTAR->text().isEmpty(), refusal.isEmpty());
    QCOMPARE(desk.form.TUTAR->hasFocus(), !refusal.isEmpty());
    QCOMPARE(desk.prompts.failures(), QStringList());
}

void InstalmentPlanTest::entries_without_name_or_amount() {
    PlanDesk desk;
    desk.enter(u"20270115"_s, u"0"_s);
    PlanDesk::press(desk.form.CommandEKLE);
    desk.form.ADSOY->setText(u"  "_s);
    desk.enter(u"20270115"_s, u"100"_s);
    desk.prompts.expect(u"Ad soyad giriniz."_s);
    PlanDesk::press(desk.form.CommandEKLE);
    QCOMPARE(desk.prompts.seen(), QStringList{u"Dikkat|Ad soyad giriniz."_s});
    QCOMPARE(desk.rows(), QStringList());
}

void InstalmentPlanTest::double_click_removes_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<QString>("prompt");
    QTest::addColumn<int>("left");
    QTest::newRow("yes") << 2 << true << "Dikkat|01.12.2026 tarihli ödeme silinecek.  Emin misiniz?" << 2;
    QTest::newRow("no") << 2 << false << "Dikkat|01.12.2026 tarihli ödeme silinecek.  Emin misiniz?" << 3;
    QTest::newRow("paid") << 1 << true
                          << "D İ K K A T !|01.11.2026 Ödeme yapılan kayıt silinemez. Önce Kasadan siliniz." << 3;
}

void InstalmentPlanTest::double_click_removes() {
    QFETCH(const int, row);
    QFETCH(const bool, answer);
    QFETCH(const int, left);
    PlanDesk desk(three_instalments());
    desk.prompts.expect(QString(), answer);
    desk.double_click_row(row);
    QTEST(desk.prompts.seen().join(u' '), "prompt");
    QCOMPARE(desk.rows().size(), left);
    QCOMPARE(desk.form.TABLO2->rows(), left);
    QCOMPARE(desk.form.YBORC->text(), QString::number(left * 1000));
    QCOMPARE(desk.form.Sno->text().isEmpty(), left == 2);
}

void InstalmentPlanTest::payment_of_another_workstation_keeps_the_row() {
    PlanDesk desk(three_instalments());
    store::Recordset odeme = desk.session.termDb.OpenRecordset("Odeme");
    odeme.Seek("=", {1250, "20261201"});
    odeme.Edit();
    odeme["ODENEN"] = 50;
    odeme.Update();
    desk.prompts.expect(u"Emin misiniz?"_s).expect(u"Önce Kasadan siliniz."_s);
    desk.double_click_row(2);
    desk.click_row(2);
    desk.prompts.expect(u"Ödemesi olan taksit tarihi değiştirilemez."_s);
    desk.enter(u"20261202"_s, u"1000"_s);
    PlanDesk::press(desk.form.CommandEKLE);
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(desk.rows().last(), u"20261201 1000/50"_s);
}

void InstalmentPlanTest::automatic_plan_data() {
    QTest::addColumn<bool>("splits");
    QTest::addColumn<QString>("fee");
    QTest::addColumn<QString>("discount");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("amounts");
    QTest::newRow("split in steps") << true << "10.000"
                                    << ""
                                    << ""
                                    << "100"
                                    << "3300 3300 3400";
    QTest::newRow("discount from the list") << true << "1.000"
                                            << "90 Kardeş"
                                            << "5"
                                            << ""
                                            << "33 33 34";
    QTest::newRow("discount leaves decimals") << true << "999"
                                              << "15"
                                              << ""
                                              << ""
                                              << "283 283 283";
    QTest::newRow("same amount each") << false << "10.000"
                                      << "90 Kardeş"
                                      << "1250.5"
                                      << "100"
                                      << "1250.5 1250.5 1250.5";
}

void InstalmentPlanTest::automatic_plan() {
    QFETCH(const bool, splits);
    QFETCH(const QString, fee);
    QFETCH(const QString, discount);
    QFETCH(const QString, amount);
    QFETCH(const QString, step);
    QFETCH(const QString, amounts);
    PlanDesk desk;
    desk.student_stored = false;
    desk.form.KTUTAR->setText(fee);
    desk.form.ISKONTO->setEditText(discount);
    desk.form.ODSEK->setCurrentIndex(1);
    desk.enter(u"20270131"_s, amount);
    PlanDesk::press(desk.form.CommandYARAT);
    PlanDesk::press(desk.form.OdeOpt[splits ? 1 : 0]);
    QTest::keyClicks(desk.form.OADET, u"3"_s);
    QTest::keyClicks(desk.form.YUVAR, step);
    PlanDesk::press(desk.form.CommandEKLE3);
    const QStringList expected = amounts.split(u' ');
    QCOMPARE(desk.rows(), QStringList({u"20270131 "_s + expected[0] + u"/0"_s, u"20270228 "_s + expected[1] + u"/0"_s,
                                       u"20270331 "_s + expected[2] + u"/0"_s}));
    QCOMPARE(desk.row(u"20270331"_s, "ODSEK") + desk.row(u"20270331"_s, "ACK"), u"1 "_s);
    QCOMPARE(desk.form.ISKONTO->currentText(), discount.left(2));
    QCOMPARE(desk.form.TUTAR->text(), expected[0]);
    QCOMPARE(desk.rows_when_stored.size(), 3);
    QCOMPARE(desk.form.TABLO2->rows(), 3);
}

void InstalmentPlanTest::automatic_plan_keeps_what_stands() {
    PlanDesk desk({{u"20270228"_s, 40, 40, 0}});
    desk.form.VADE->set_key(u"20270131"_s);
    PlanDesk::press(desk.form.CommandYARAT);
    PlanDesk::press(desk.form.OdeOpt[1]);
    QTest::keyClicks(desk.form.OADET, u"4"_s);
    PlanDesk::press(desk.form.CommandEKLE3);
    QCOMPARE(desk.rows(),
             QStringList({u"20270131 2500/0"_s, u"20270228 40/40"_s, u"20270331 2500/0"_s, u"20270430 2500/0"_s}));
    QCOMPARE(desk.row(u"20270228"_s, "ACK"), u"elden"_s);
    QCOMPARE(desk.form.TFARK->text(), u"2.460"_s);
}

void InstalmentPlanTest::panel_of_the_automatic_plan() {
    PlanDesk desk;
    desk.form.OADET->addItems({u"1"_s, u"2"_s, u"12"_s});
    PlanDesk::press(desk.form.CommandYARAT);
    QVERIFY(desk.form.Frame3->isVisible());
    QVERIFY(!desk.form.TABLO2->isEnabled() && !desk.form.CommandEKLE->isEnabled());
    QVERIFY(desk.form.OADET->hasFocus() || desk.form.OADET->lineEdit()->hasFocus());
    QCOMPARE(desk.form.OADET->currentText(), QString());
    PlanDesk::press(desk.form.CommandGERI3);
    QVERIFY(!desk.form.Frame3->isVisible());
    QVERIFY(desk.form.TABLO2->isEnabled() && desk.form.CommandEKLE->isEnabled());

    // The form may be cleared behind the panel: nobody's plan is not written.
    PlanDesk::press(desk.form.CommandYARAT);
    desk.form.ONO->clear();
    PlanDesk::press(desk.form.OdeOpt[1]);
    QTest::keyClicks(desk.form.OADET, u"2"_s);
    PlanDesk::press(desk.form.CommandEKLE3);
    QVERIFY(!desk.form.Frame3->isVisible());
    store::Recordset odeme = desk.session.termDb.OpenRecordset("Odeme");
    QCOMPARE(odeme.RecordCount(), 2);
}

void InstalmentPlanTest::automatic_plan_is_refused_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("fee");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("no fee") << "AYŞE"
                            << ""
                            << ""
                            << "Önce kayıt bedelini giriniz.";
    QTest::newRow("no count") << "AYŞE"
                              << "1.000"
                              << "0"
                              << "Tutar ve Adet sıfır olmamalı.";
    QTest::newRow("no name") << ""
                             << "1.000"
                             << ""
                             << "";
}

void InstalmentPlanTest::automatic_plan_is_refused() {
    QFETCH(const QString, name);
    QFETCH(const QString, fee);
    QFETCH(const QString, count);
    QFETCH(const QString, refusal);
    PlanDesk desk;
    desk.form.ADSOY->setText(name);
    desk.form.KTUTAR->setText(fee);
    if (!refusal.isEmpty()) desk.prompts.expect(refusal);
    PlanDesk::press(desk.form.CommandYARAT);
    QCOMPARE(desk.form.Frame3->isVisible(), !count.isEmpty());
    if (!count.isEmpty()) {
        PlanDesk::press(desk.form.OdeOpt[1]);
        QTest::keyClicks(desk.form.OADET, count);
        PlanDesk::press(desk.form.CommandEKLE3);
        QVERIFY(desk.form.Frame3->isVisible());
    }
    QCOMPARE(desk.prompts.failures(), QStringList());
    QCOMPARE(desk.rows(), QStringList());
}

void InstalmentPlanTest::proposed_fee_data() {
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("fee");
    QTest::newRow("track") << "Sayısal"
                           << "45000";
    QTest::newRow("decimals") << "Lise-4"
                              << "1250,5";
    QTest::newRow("discount of that name") << "Sözel"
                                           << "";
    QTest::newRow("not in the list") << "DGS"
                                     << "";
}

void InstalmentPlanTest::proposed_fee() {
    QFETCH(const QString, choice);
    PlanDesk desk;
    PlanDesk::price(u"1"_s, u"Sayısal"_s, 45000);
    PlanDesk::price(u"1"_s, u"Lise-4"_s, 1250.5);
    PlanDesk::price(u"2"_s, u"Sözel"_s, 10);
    desk.form.DIN->addItems({u" "_s, choice});
    QCOMPARE(desk.form.KTUTAR->text(), u"10.000"_s);
    desk.session.studentSelected = true;
    QTest::keyClick(desk.form.DIN, Qt::Key_Down);
    QCOMPARE(desk.form.KTUTAR->text(), u"10.000"_s);
    desk.form.DIN->setCurrentIndex(0);
    desk.session.studentSelected = false;
    QTest::keyClick(desk.form.DIN, Qt::Key_Down);
    QTEST(desk.form.KTUTAR->text(), "fee");
}

void InstalmentPlanTest::discount_keeps_its_number() {
    PlanDesk desk;
    desk.form.ISKONTO->addItems({u"5 Peşin"_s, u"10 Kardeş indirimi"_s});
    desk.form.ISKONTO->setCurrentIndex(0);
    desk.form.ISKONTO->setFocus();
    QTest::keyClick(desk.form.ISKONTO, Qt::Key_Down);
    QCOMPARE(desk.form.ISKONTO->currentText(), u"10"_s);
    desk.form.ISKONTO->clearEditText();
    QTest::keyClicks(desk.form.ISKONTO, u"1"_s);
    desk.form.VADE->setFocus();
    QCOMPARE(desk.form.ISKONTO->currentText(), u"1"_s);
}
