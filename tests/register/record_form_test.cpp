#include "desk.h"
#include "platform/date_picker.h"

namespace {

const Row ayse{{"ONO", 1250},          {"ADSOY", "AYŞE NUR YILDIRIM"}, {"SINIF", "12A"},
               {"KAYTAR", "20260905"}, {"AYTAR", "20000101"},          {"BOLUM", "2"}};

}  // namespace

class RecordFormTest : public QObject {
    Q_OBJECT

private slots:
    void opens_on_the_student_of_the_card() {
        Desk desk({ayse});
        KurvoYeni& form = desk.open("1250");
        QVERIFY(!desk.kurvo.isEnabled() && !form.ONO->isEnabled() && form.CommandNODGS->isVisible());
        QCOMPARE(form.ONO->text() + form.ADSOY->text(), QString("1250AYŞE NUR YILDIRIM"));
        form.close();
        QVERIFY(desk.kurvo.isEnabled() && desk.session.studentSelected);
        KurvoYeni& empty = desk.open();
        empty.ANNE->setText("FATMA ");
        desk.enter_number("1a2-5.1");
        QCOMPARE(empty.ONO->text() + empty.ANNE->text(), QString("1251FATMA"));
        QVERIFY(!empty.ONO->isEnabled() && !empty.CommandNODGS->isVisible() && empty.CommandEKLE->isEnabled());
    }

    void rights_decide_data() {
        QTest::addColumn<QString>("may_change");
        QTest::addColumn<int>("collections");
        QTest::addColumn<double>("fee");
        QTest::addColumn<bool>("fee_enabled");
        QTest::addColumn<bool>("buttons_enabled");
        QTest::addColumn<bool>("leaving_enabled");
        QTest::newRow("entitled") << "1" << 1 << 1000.0 << true << true << true;
        QTest::newRow("not entitled") << "0" << 1 << 1000.0 << false << false << false;
        QTest::newRow("no option at all") << "" << 1 << 1000.0 << false << false << true;
        QTest::newRow("no fee yet") << "0" << 1 << 0.0 << true << true << false;
        QTest::newRow("without collections") << "1" << 0 << 1000.0 << true << false << true;
    }

    void rights_decide() {
        QFETCH(QString, may_change);
        QFETCH(int, collections);
        QFETCH(double, fee);
        Row student = ayse;
        student.emplace_back("KTUTAR", fee);
        Desk desk({student});
        desk.instalment(1250, "20261001", 1000);
        desk.session.mayChangeFees = may_change;
        desk.session.collectionsAllowed = collections;
        KurvoYeni& form = desk.open("1250");
        QCOMPARE(form.KTUTAR->text(), collections == 0 || fee == 0 ? QString() : QString("1.000"));
        QTEST(form.KTUTAR->isEnabled(), "fee_enabled");
        QTEST(form.TABLO2->isEnabled(), "fee_enabled");
        for (const QWidget* control :
             std::initializer_list<QWidget*>{form.CommandEKLE, form.CommandYARAT, form.CommandSENET})
            QTEST(control->isEnabled(), "buttons_enabled");
        for (const QWidget* control : std::initializer_list<QWidget*>{form.CommandSIL, form.AYYER, form.AYTAR})
            QTEST(control->isEnabled(), "leaving_enabled");
        QCOMPARE(form.TABLO2->rows(), collections);
        if (collections == 1) return;
        // A fee that is not shown is not lost either; a new student has none.
        Desk::press(form.CommandKAYDET);
        desk.enter_number("1");
        Desk::press(form.CommandKAYDET);
        QCOMPARE(desk.field(1250, "KTUTAR") + u' ' + desk.field(1, "KTUTAR"), QString("1000 0"));
    }
};

static const Registered<RecordFormTest> registered;
#include "record_form_test.moc"
