#include "plan_desk.h"
#include "support/grids.h"
#include "support/run_all.h"

using namespace Qt::StringLiterals;

namespace {

// Two unpaid instalments around one that 300 was paid on.
std::vector<Instalment> three_instalments() {
    return {{u"20261001"_s, 1000}, {u"20261101"_s, 1000, 300}, {u"20261201"_s, 1000}};
}

void write_plan(PlanDesk& desk, std::size_t option, const QString& count, const QString& step) {
    PlanDesk::press(desk.form.CommandYARAT);
    PlanDesk::press(desk.form.OdeOpt[option]);
    QTest::keyClicks(desk.form.OADET, count);
    QTest::keyClicks(desk.form.YUVAR, step);
    PlanDesk::press(desk.form.CommandEKLE3);
}

}  // namespace

class InstalmentPlanTest : public QObject {
    Q_OBJECT

private slots:
    void refill_shows_plan_and_totals() {
        PlanDesk desk({{u"20261001"_s, 2500.5},
                       {u"20261101"_s, 8000, 1250.5, 0},
                       {u"20261123"_s, 10, 0, 6},
                       {u"20261124"_s, 700}});
        QCOMPARE(desk.form.TABLO2->rows(), 4);
        QCOMPARE(grid_row(*desk.form.TABLO2, 0), u"1|01.10.2026|2.500,5|Nakit|elden|0"_s);
        QCOMPARE(grid_row(*desk.form.TABLO2, 1), u"2|01.11.2026|8.000|Senet|elden|1250.5"_s);
        QCOMPARE(desk.form.YBORC->text() + u' ' + desk.form.YODENEN->text(), u"11210.5 1250.5"_s);
        QCOMPARE(desk.form.YKALAN->text(), u"9960"_s);
        // What falls due today is not overdue, what was cancelled is.
        QCOMPARE(desk.form.YGECIKEN->text(), u"9260"_s);
        QCOMPARE(desk.form.TFARK->text(), u"-1.210,5"_s);
    }

    void first_instalment_stores_the_student() {
        PlanDesk desk;
        desk.student_stored = false;
        desk.form.ODSEK->setCurrentIndex(3);
        desk.enter(u"20270115"_s, u"1250,75"_s);
        PlanDesk::press(desk.form.CommandEKLE);
        QCOMPARE(desk.rows_when_stored, QStringList{u"20270115 1250/0"_s});
        QCOMPARE(desk.row(u"20270115"_s, "ODSEK") + desk.row(u"20270115"_s, "ACK"), u"3 "_s);
        QVERIFY(desk.form.VADE->hasFocus());
        QCOMPARE(desk.form.Sno->text() + desk.form.TUTAR->text() + desk.form.ACK->text(), QString());

        desk.enter(u"20270215"_s, u"12.5"_s);
        PlanDesk::press(desk.form.CommandEKLE);
        QCOMPARE(desk.rows_when_stored.size(), 1);
        QCOMPARE(desk.rows(), QStringList({u"20270115 1250/0"_s, u"20270215 12.5/0"_s}));

        desk.form.ADSOY->setText(u"  "_s);
        desk.prompts.expect(u"Ad soyad giriniz."_s);
        desk.enter(u"20270315"_s, u"100"_s);
        PlanDesk::press(desk.form.CommandEKLE);
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(desk.rows().size(), 2);
    }

    void rows_are_changed_and_moved_data() {
        QTest::addColumn<int>("chosen");  // -1: none
        QTest::addColumn<QString>("vade");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("rows");
        const auto row = [](const char* name, int chosen, const QString& vade, const QString& amount,
                            const QString& refusal, const QString& rows) {
            QTest::newRow(name) << chosen << vade << amount << refusal << rows;
        };
        const QString before = u"20261001 1000/0 20261101 1000/300 20261201 1000/0"_s, none;
        const QString paid_date = u"Ödemesi olan taksit tarihi değiştirilemez."_s;
        const QString below = u"Tutar Ödenenden küçük olamaz"_s;
        row("amount", 1, u"20261101"_s, u"300"_s, none, u"20261001 1000/0 20261101 300/300 20261201 1000/0"_s);
        row("below what is paid", 1, u"20261101"_s, u"299"_s, below, before);
        row("free date", 0, u"20261224"_s, u"900"_s, none, u"20261101 1000/300 20261201 1000/0 20261224 900/0"_s);
        row("onto another", 0, u"20261201"_s, u"900"_s, none, u"20261101 1000/300 20261201 900/0"_s);
        row("onto a paid one", 0, u"20261101"_s, u"400"_s, none, u"20261101 400/300 20261201 1000/0"_s);
        row("refused by a paid one", 0, u"20261101"_s, u"200"_s, below, before);
        row("paid one stays", 1, u"20261102"_s, u"1000"_s, paid_date, before);
        row("new one on a paid date", -1, u"20261101"_s, u"200"_s, below, before);
    }

    void rows_are_changed_and_moved() {
        QFETCH(const int, chosen);
        QFETCH(const QString, vade);
        QFETCH(const QString, amount);
        QFETCH(const QString, refusal);
        PlanDesk desk(three_instalments());
        if (chosen >= 0) {
            desk.click_row(chosen);
            QCOMPARE(desk.form.Sno->text(), QString::number(chosen + 1));
            QCOMPARE(desk.form.TUTAR->text() + desk.form.ODSEK->currentText() + desk.form.ACK->text(),
                     u"1000Nakitelden"_s);
        }
        if (!refusal.isEmpty()) desk.prompts.expect(refusal);
        desk.enter(vade, amount);
        PlanDesk::press(desk.form.CommandEKLE);
        QTEST(desk.rows().join(u' '), "rows");
        QCOMPARE(desk.form.TUTAR->hasFocus(), !refusal.isEmpty());
        QCOMPARE(desk.prompts.failures(), QStringList());
    }

    void double_click_removes() {
        PlanDesk desk(three_instalments());
        desk.prompts.expect(u"01.12.2026 tarihli ödeme silinecek.  Emin misiniz?"_s, false);
        desk.double_click_row(2);
        desk.prompts.expect(u"01.11.2026 Ödeme yapılan kayıt silinemez. Önce Kasadan siliniz."_s);
        desk.double_click_row(1);
        QCOMPARE(desk.rows().size(), 3);
        desk.prompts.expect(u"01.12.2026 tarihli ödeme silinecek.  Emin misiniz?"_s);
        desk.double_click_row(2);
        QCOMPARE(desk.rows(), QStringList({u"20261001 1000/0"_s, u"20261101 1000/300"_s}));
        QCOMPARE(desk.form.YBORC->text(), u"2000"_s);
        QCOMPARE(desk.prompts.failures(), QStringList());
    }

    void payment_of_another_workstation_keeps_the_row() {
        PlanDesk desk(three_instalments());
        store::Recordset odeme = desk.session.termDb.OpenRecordset("Odeme");
        odeme.Seek("=", {1250, "20261201"});
        odeme.Edit();
        odeme["ODENEN"] = 50;
        odeme.Update();
        desk.prompts.expect(u"Emin misiniz?"_s).expect(u"Önce Kasadan siliniz."_s);
        desk.double_click_row(2);
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(desk.rows().last(), u"20261201 1000/50"_s);
    }

    void automatic_plan() {
        PlanDesk desk;
        desk.student_stored = false;
        desk.form.ISKONTO->setEditText(u"90 Kardeş"_s);
        desk.form.ODSEK->setCurrentIndex(1);
        desk.enter(u"20270131"_s, u"5"_s);
        write_plan(desk, 1, u"3"_s, u"10"_s);
        QCOMPARE(desk.rows(), QStringList({u"20270131 330/0"_s, u"20270228 330/0"_s, u"20270331 340/0"_s}));
        QCOMPARE(desk.row(u"20270331"_s, "ODSEK") + desk.row(u"20270331"_s, "ACK"), u"1 "_s);
        QCOMPARE(desk.rows_when_stored.size(), 3);
    }

    void automatic_plan_keeps_what_stands() {
        PlanDesk desk({{u"20270228"_s, 40, 40, 0}});
        desk.enter(u"20270131"_s, u"1250.5"_s);
        write_plan(desk, 0, u"3"_s, u"100"_s);  // the same amount each
        QCOMPARE(desk.rows(), QStringList({u"20270131 1250.5/0"_s, u"20270228 40/40"_s, u"20270331 1250.5/0"_s}));
        QCOMPARE(desk.row(u"20270228"_s, "ACK"), u"elden"_s);
    }

    void automatic_plan_is_refused() {
        PlanDesk desk;
        desk.prompts.expect(u"Tutar ve Adet sıfır olmamalı."_s).expect(u"Önce kayıt bedelini giriniz."_s);
        write_plan(desk, 1, u"0"_s, {});
        QVERIFY(desk.form.Frame3->isVisible());
        PlanDesk::press(desk.form.CommandGERI3);
        desk.form.KTUTAR->clear();
        PlanDesk::press(desk.form.CommandYARAT);
        QVERIFY(!desk.form.Frame3->isVisible());
        QCOMPARE(desk.prompts.failures(), QStringList());
        QCOMPARE(desk.rows(), QStringList());
    }
};

static const Registered<InstalmentPlanTest> registered;
#include "instalment_plan_test.moc"
