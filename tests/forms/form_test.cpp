// The main form as it lies on the screen: locks and keys.
#include "checks.h"
#include "forms/kurvo.h"
#include "forms/look.h"
#include "support/run_all.h"

#include <QSignalSpy>

namespace {

// The form with every panel button that a user may have, and shown.
class Screen : public Kurvo {
public:
    Screen() {
        int top = 480;
        for (QPushButton* button :
             {CommandYENI, CommandTAHSILAT, CommandDEVAMSIZLIK, CommandETUD, CommandNOT, CommandTOPLU}) {
            button->show();
            place_button(button, top);
            top += 240;
        }
        resize(1366, 700);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this)) qWarning("the form is not active");
    }

    void second_stage() {
        panel_goster(Panel::Tahsil);
        CommandTAHSIL->hide();
        for (QWidget* control : std::initializer_list<QWidget*>{CommandOK, CommandGERI, FTahsil_Frame1})
            control->show();
    }

    void invoice_details() {
        second_stage();
        CommandOK->hide();
        CommandGERI->hide();
        FTahsil_Frame2->show();
    }
};

}  // namespace

class FormTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { look::apply(*qApp); }

    void locks_count() {
        Screen form;
        form.CommandNOT->setEnabled(false);
        form.kilitle({form.LONO, form.CommandNOT});
        form.kilitle({form.LONO, form.TABLO});
        form.kilidi_ac({form.LONO, form.CommandNOT});
        QVERIFY2(!form.LONO->isEnabled(), "the second lock still holds");
        QVERIFY2(!form.CommandNOT->isEnabled(), "it was disabled before the lock");
        form.kilidi_ac({form.LONO, form.TABLO, form.SDONEM});
        QVERIFY(form.LONO->isEnabled() && form.TABLO->isEnabled() && form.SDONEM->isEnabled());
        form.kilitle({form.LONO});
        QVERIFY(!form.LONO->isEnabled());

        form.second_stage();
        QVERIFY2(!form.FTahsil_Tablo2->isEnabled(), "what an overlay covers is out of reach");
        QVERIFY(place_in(form, *form.FTahsil_Frame1).contains(place_in(form, *form.FTahsil_Tablo2)));
        form.FTahsil_Frame2->show();
        QVERIFY(!form.FTahsil_TABLO4->isEnabled());
        form.FTahsil_Frame2->hide();
        form.FTahsil_Frame1->hide();
        QVERIFY(form.FTahsil_Tablo2->isEnabled() && form.FTahsil_TABLO4->isEnabled());
    }

    void keys_respect_a_lock() {
        Screen form;
        connect(form.CommandSBUL, &QPushButton::clicked, &form, [&] { form.panel_goster(Kurvo::Panel::SBUL); });
        form.panel_goster(Kurvo::Panel::Tahsil);
        form.ODENEN->setFocus();
        form.kilitle(form.student_choice());
        QTest::keyClick(form.ODENEN, Qt::Key_F2);
        QTest::keyClick(form.ODENEN, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(form.ODENEN->hasFocus() && form.Frame_Tahsil->isVisible());
        form.kilidi_ac(form.student_choice());
        QTest::keyClick(form.ODENEN, Qt::Key_F2);
        QVERIFY(form.LONO->hasFocus());
        QTest::keyClick(form.LONO, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(form.FSBUL_soyad->hasFocus());
    }

    void escape_leaves_only_an_overlay_with_a_way_out() {
        Screen form;
        QSignalSpy back(form.CommandGERI, &QPushButton::clicked), closed(&form, &Kurvo::closing);
        const auto escape = [&](QWidget* from) {
            from->setFocus();
            QTest::keyClick(from, Qt::Key_Escape);
            return back.count();
        };
        form.panel_goster(Kurvo::Panel::Tahsil);
        QCOMPARE(escape(form.ODENEN), 0);
        form.invoice_details();
        QCOMPARE(escape(form.fADSOY), 0);
        form.FTahsil_Frame2->hide();
        form.CommandGERI->show();
        QCOMPARE(escape(form.KFISNO), 1);
        QVERIFY(form.isVisible());

        form.setEnabled(false);
        QVERIFY(!form.close() && closed.isEmpty());
        form.setEnabled(true);
        QVERIFY(form.close());
        QCOMPARE(closed.count(), 1);
    }
};

static const Registered<FormTest> registered;
#include "form_test.moc"
