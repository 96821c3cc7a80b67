#include "fees_tests.h"
#include "plan_desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

void BusServiceTest::stop_is_picked_from_the_routes() {
    PlanDesk desk;
    PlanDesk::bus(7, 0, u"Kadıköy # sabah"_s);
    PlanDesk::bus(7, 1, u"Moda#İskele#07:20"_s);
    PlanDesk::bus(8, 3, u"Üsküdar"_s);
    PlanDesk::press(desk.form.CommandSERVISBUL);
    const GridView& stops = *desk.form.TABLO;
    QVERIFY(desk.form.FrameSERVIS->isVisible() && stops.isVisible());
    QCOMPARE(stops.rows(), 3);
    QCOMPARE(stops.text(0, 1) + u'|' + stops.text(0, 2), u"|Kadıköy # sabah"_s);
    QCOMPARE(stops.text(1, 1) + u'|' + stops.text(1, 2), u"1|Moda  /  İskele  /  07:20"_s);
    QCOMPARE(stops.back_color(0, 2), QColor(0, 128, 0));
    QCOMPARE(stops.fore_color(0, 0), QColor(255, 255, 255));
    QVERIFY(stops.back_color(1, 0) != QColor(0, 128, 0));

    PlanDesk::click(stops, 0);
    QVERIFY(desk.form.FrameSERVIS->isVisible());
    PlanDesk::click(stops, 1);
    QVERIFY(!desk.form.FrameSERVIS->isVisible());
    QCOMPARE(desk.form.SERVISNO->text() + u'/' + desk.form.DURAKNO->text(), u"7/1"_s);
    QVERIFY(desk.form.SERVISNO->hasFocus());
}

void BusServiceTest::empty_table_opens_too() {
    PlanDesk desk;
    PlanDesk::press(desk.form.CommandSERVISBUL);
    QVERIFY(desk.form.FrameSERVIS->isVisible());
    QCOMPARE(desk.form.TABLO->rows(), 0);
    PlanDesk::press(desk.form.ServisCIK);
    QVERIFY(!desk.form.FrameSERVIS->isVisible());
}
