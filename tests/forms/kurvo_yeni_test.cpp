// The record form as it lies on the screen: fields, limits, room, overlays.
#include "forms/kurvo_yeni.h"

#include "checks.h"
#include "forms/look.h"
#include "forms/record_fields.h"
#include "platform/date_picker.h"
#include "store/catalogue.h"
#include "support/run_all.h"

#include <QScrollBar>
#include <QSignalSpy>

namespace {

class Page : public KurvoYeni {
public:
    explicit Page(const QSize& size = {1366, 700}) {
        resize(size);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this)) qWarning("the form is not active");
    }

    // Where the focus goes with Tab from a control until it comes to one again.
    QStringList tab_round(QWidget* from) {
        from->setFocus();
        QStringList visited;
        while (!visited.contains(focusWidget()->objectName())) {
            visited << focusWidget()->objectName();
            QTest::keyClick(focusWidget(), Qt::Key_Tab);
        }
        return visited;
    }
};

}  // namespace

class KurvoYeniTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { look::apply(*qApp); }

    // The table of fields is the table of the file: the same names in the same order.
    void every_field_has_its_caption_and_control() {
        const Page form;
        const auto& stored = store::table_of(store::FileKind::term, "Ogrenci").fields;
        QCOMPARE(record_fields().size(), stored.size());
        for (std::size_t i = 0; i < stored.size(); ++i) {
            const RecordField& field = record_fields()[i];
            QCOMPARE(QString::fromStdString(stored[i].name), QString(field.field));
            if (field.kind == FieldKind::untouched) continue;
            const QWidget* control = control_of(field, form);
            QCOMPARE(control->objectName(), QString(field.control));
            QVERIFY2(form.isAncestorOf(control) && control->isVisible(), field.field);
            const auto* says = qobject_cast<const QAbstractButton*>(control);
            QVERIFY2((says != nullptr ? says->text() : control->accessibleName()).contains(field.caption.trimmed()),
                     field.field);
        }
        QCOMPARE(nameless_controls(form), "");
    }

    void typing_stops_at_the_limit() {
        const std::pair<int, QString> limits[]{
            {70, "VISADRES"},
            {50, "ACIKLAMA AISADRES BISADRES"},
            {40, "VIVUNVAN"},
            {35, "ADRES1 ADRES2"},
            {25, "ADSOY VELI VYAKINLIK AYYER AISYERI BISYERI VISVEREN"},
            {20, "ANNE BABA AMESLEK BMESLEK AOKUL BOKUL REFERANS AYAKKABI SERVISNO DURAKNO"},
            {13,
             "TEL VTEL VGSM VTCNO AGSMTEL BGSMTEL AISTEL BISTEL AEVTEL BEVTEL AIL AILCE IL ILCE KOY DOGYER NCSNO "
             "VATNO VERYER"},
            {11, "VISTEL"},
            {10, "VISGIRTAR VISAYTAR"},
            {8, "CILT HANE SIRA KAYNO"},
            {5, "BEDEN"}};
        Page form;
        for (const auto& [limit, names] : limits)
            for (const QString& name : names.split(' ')) {
                auto* box = form.findChild<QLineEdit*>(name);
                box->setFocus();
                box->selectAll();
                QTest::keyClicks(box, QString(limit + 2, u'a'));
                QTest::keyClick(box, Qt::Key_Home);
                QTest::keyClicks(box, "b");
                QVERIFY2(box->text() == QString(limit, u'a'), qPrintable(name));
                box->selectAll();
                box->insert(QString(100, u'c'));
                QVERIFY2(box->text() == QString(limit, u'c'), qPrintable(name));
            }
        const QString stored(30, u'x');  // what was loaded is not cut
        form.ADSOY->setText(stored);
        form.ADSOY->setFocus();
        QTest::keyClicks(form.ADSOY, "y");
        QCOMPARE(form.ADSOY->text(), stored);
        QTest::keyClick(form.ADSOY, Qt::Key_Backspace);
        QCOMPARE(form.ADSOY->text(), stored.chopped(1));
        form.VGSM->clear();
        form.VGSM->setFocus();
        QTest::keyClicks(form.VGSM, "0532 123 45 67.,8901");  // blanks beside its 13 digits
        QCOMPARE(form.VGSM->text(), QString("0532 123 45 67.,89"));
    }

    // Sideways never, downwards where the screen is low; and no caption is cut.
    void page_fits_the_screen() {
        for (const auto& [size, scrolls] : {std::pair(QSize(1366, 700), true), {QSize(1920, 1020), false}}) {
            Page form(size);
            form.CommandNODGS->show();
            QCoreApplication::processEvents();
            QCOMPARE(form.size(), size);
            QCOMPARE(form.page->horizontalScrollBar()->maximum(), 0);
            QCOMPARE(form.page->verticalScrollBar()->maximum() > 0, scrolls);
            QCOMPARE(cut_captions(form), "");

            form.Frame3->show();
            QCoreApplication::processEvents();
            const QRect panel = place_in(form, *form.Frame3);
            for (const QWidget* control : std::initializer_list<QWidget*>{form.VADE, form.TUTAR, form.ODSEK, form.ACK})
                QVERIFY2(!panel.intersects(place_in(form, *control)), qPrintable(control->objectName()));
            // The step of rounding is typed between the brackets.
            const QRect brackets = place_in(form, *form.caption_YUVAR);
            QVERIFY(brackets.adjusted(0, -8, 0, 8).contains(place_in(form, *form.YUVAR)));
        }
    }

    void overlay_covers_the_page() {
        Page form;
        const QPoint at = place_in(form, *form.ADSOY).center();
        form.FrameNODGS->show();
        QVERIFY(form.childAt(at) != form.ADSOY);
        QCOMPARE(form.tab_round(form.YENINO), QStringList({"YENINO", "CommandNODEGISTIR", "CommandNOVAZGEC"}));
        QSignalSpy cancelled(form.CommandNOVAZGEC, &QPushButton::clicked), closed(&form, &KurvoYeni::closed);
        QTest::keyClick(form.YENINO, Qt::Key_Escape);
        QCOMPARE(cancelled.count(), 1);
        form.FrameNODGS->hide();
        QCOMPARE(form.childAt(at), static_cast<QWidget*>(form.ADSOY));
        form.ADSOY->setFocus();
        QTest::keyClick(form.ADSOY, Qt::Key_Escape);
        QVERIFY(form.isVisible());
        form.close();
        QCOMPARE(closed.count(), 1);
    }
};

static const Registered<KurvoYeniTest> registered;
#include "kurvo_yeni_test.moc"
