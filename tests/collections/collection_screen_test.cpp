#include "support/run_all.h"
#include "till.h"

namespace {

// Three instalments that are 2.750 together.
void three_instalments(const TillFiles& files) {
    files.instalment("20261001", 1000);
    files.instalment("20261101", 500);
    files.instalment("20261201", 1250);
}

std::vector<bool> enabled(const std::vector<QWidget*>& controls) {
    std::vector<bool> all;
    for (const QWidget* control : controls) all.push_back(control->isEnabled());
    return all;
}

}  // namespace

class CollectionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void typed_amounts_spread_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QStringList>("marks");
        QTest::addColumn<QString>("odenen");  // KASAODENEN too
        QTest::newRow("exactly the first") << "1000" << QStringList({"X1000", "", ""}) << "1000";
        QTest::newRow("with its point") << "2.750" << QStringList({"X1000", "X500", "X1250"}) << "2.750";
        QTest::newRow("more than the debt") << "2751" << QStringList({"X1000", "X500", "X1250"}) << "2750";
        QTest::newRow("half a unit up") << "12,5" << QStringList({"X13", "", ""}) << "12,5";
        QTest::newRow("no number") << "abc" << QStringList({"", "", ""}) << "abc";
    }

    void typed_amounts_spread() {
        TillFiles files;
        three_instalments(files);
        Till till;
        till.pick();
        QFETCH(QString, keys);
        till.type_amount(keys);
        QTEST(till.marks(), "marks");
        QTEST(till.kurvo.ODENEN->text(), "odenen");
        QTEST(till.kurvo.KASAODENEN->text(), "odenen");
    }

    void second_stage_holds_the_student() {
        TillFiles files;
        three_instalments(files);
        Till till;
        till.pick();
        till.begin_second_stage();
        QVERIFY(!till.kurvo.FTahsil_Frame1->isVisible());  // nothing is marked

        const std::vector<QWidget*> held{till.kurvo.CommandYENI, till.kurvo.CommandTAHSILAT, till.kurvo.CommandTOPLU,
                                         till.kurvo.CommandSBUL, till.kurvo.TABLO,           till.kurvo.LONO,
                                         till.kurvo.SDONEM,      till.kurvo.ODENEN,          till.kurvo.KASAODENEN};
        const std::vector<bool> before = enabled(held);
        till.type_amount("1200");
        till.begin_second_stage();
        QVERIFY(till.kurvo.FTahsil_Frame1->isVisible() && !till.kurvo.CommandTAHSIL->isVisible());
        QCOMPARE(grid_rows(*till.kurvo.FTahsil_TABLO4, 0),
                 QStringList({" Vade Tarihi| Tutar| Ödeme Şekli| Açıklama| Ödenen", "01.10.2026|Nakit| |1.000|1000",
                              "01.11.2026|Nakit| |500|200"}));
        QCOMPARE(till.kurvo.FTahsil_TABLO4->rows(), 3);

        QCOMPARE(enabled(held), std::vector<bool>(held.size(), false));
        till.press(till.kurvo.CommandGERI);
        QCOMPARE(enabled(held), before);
        QVERIFY(till.kurvo.CommandTAHSIL->isVisible() && !till.kurvo.CommandOK->isVisible());
    }

    // The button that posts takes the place of the one that leads there, right under the pointer.
    void double_click_posts_nothing() {
        const TillFiles files;
        three_instalments(files);
        Till till;
        till.pick();
        till.type_amount("1200");
        const QPoint at = till.kurvo.CommandTAHSIL->mapTo(&till.kurvo, till.kurvo.CommandTAHSIL->rect().center());
        QTest::mouseDClick(till.kurvo.windowHandle(), Qt::LeftButton, {}, at);
        QVERIFY(till.kurvo.FTahsil_Frame1->isVisible());
        QVERIFY(
            till.kurvo.CommandOK->geometry().contains(till.kurvo.CommandOK->parentWidget()->mapFrom(&till.kurvo, at)));
        QCOMPARE(files.tahsilat(), QStringList());
        QTest::mouseClick(till.kurvo.windowHandle(), Qt::LeftButton, {}, at);
        QCOMPARE(files.tahsilat().size(), 2);
    }

    void corrections_and_the_way_back() {
        TillFiles files;
        three_instalments(files);
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
        QCOMPARE(till.kurvo.FTahsil_TABLO4->text(1, 4), "400");
        QCOMPARE(till.kurvo.FTahsil_TABLO4->text(2, 4), "1.250");
        QCOMPARE(till.kurvo.ODENEN->text() + u' ' + till.kurvo.KASAODENEN->text(), "1.650 1.650");

        // The sum of what is open, not of what was typed; the marks stay.
        till.press(till.kurvo.CommandGERI);
        QCOMPARE(till.kurvo.ODENEN->text(), "2.250");
        QCOMPARE(till.marks(), QStringList({"X1000", "", "X1250"}));
        QVERIFY(!till.kurvo.Cel_In->isVisible());
    }
};

static const Registered<CollectionScreenTest> registered;
#include "collection_screen_test.moc"
