// The main form as it lies on the screen: panels, locks, keys, long texts.
#include "checks.h"
#include "forms/kurvo.h"
#include "forms/look.h"
#include "support/run_all.h"

#include <QSignalSpy>
#include <QWheelEvent>

#include <map>

namespace {

// The form at a size, with every panel button that a user may have, and shown.
class Screen : public Kurvo {
public:
    explicit Screen(const QSize& size = {1366, 700}) {
        int top = 480;
        for (QPushButton* button :
             {CommandYENI, CommandTAHSILAT, CommandDEVAMSIZLIK, CommandETUD, CommandNOT, CommandTOPLU}) {
            button->show();
            place_button(button, top);
            top += 240;
        }
        resize(size);
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

    std::map<QString, QRect> places() const {
        std::map<QString, QRect> found;
        for (const QWidget* widget : findChildren<QWidget*>(QRegularExpression("^(?!qt_).")))
            if (widget->isVisible()) found[widget->objectName()] = place_in(*this, *widget);
        return found;
    }
};

}  // namespace

class FormTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { look::apply(*qApp); }

    void panel_takes_its_part_of_the_work_area() {
        Screen form;
        QTest::mouseClick(form.CommandTAHSILAT, Qt::LeftButton);
        QVERIFY2(!form.CommandTAHSILAT->isChecked(), "a click that opened nothing leaves the button up");
        connect(form.CommandTAHSILAT, &QPushButton::clicked, &form, [&] { form.panel_goster(Kurvo::Panel::Tahsil); });
        for (int click = 0; click < 2; ++click) QTest::mouseClick(form.CommandTAHSILAT, Qt::LeftButton);
        QVERIFY(form.CommandTAHSILAT->isChecked());
        form.panel_goster(Kurvo::Panel::SBUL);
        QVERIFY(!form.CommandTAHSILAT->isChecked() && form.CommandSBUL->isChecked());
        QVERIFY(form.Frame_SBUL->isVisible() && !form.Frame_Tahsil->isVisible());
        form.resize(1600, 900);
        QCoreApplication::processEvents();
        // 1080 and 360, 120 and 120 twips inside the left and top edge; the other edges are the work area's.
        const QRect area = form.Shape[1]->rect();
        QCOMPARE(form.Frame_SBUL->geometry(), QRect(90, 30, area.width() - 90, area.height() - 30));
        QCOMPARE(form.Frame_Tahsil->geometry(), QRect(10, 10, area.width() - 10, area.height() - 10));
    }

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

    void controls_have_their_own_names_and_keys() {
        Screen form;
        QCOMPARE(nameless_controls(form), "");
        for (const auto& enter : std::initializer_list<std::function<void()>>{
                 [&] { form.panel_goster(Kurvo::Panel::SBUL); }, [&] { form.panel_goster(Kurvo::Panel::Tahsil); },
                 [&] { form.second_stage(); }, [&] { form.invoice_details(); }}) {
            enter();
            QCOMPARE(conflicting_keys(visible_buttons(form)), "");
        }
    }

    void long_texts_move_and_cut_nothing() {
        // A screen of 1920 at 150 %, one of 1366 by 768, one of 1920 by 1080, without task bar and title.
        for (const QSize size : {QSize(1280, 660), QSize(1366, 700), QSize(1920, 1040)}) {
            Screen form(size);
            form.second_stage();
            QCoreApplication::processEvents();
            const auto before = form.places();
            for (QLabel* label : {form.LVELI, form.LANNE, form.LBABA}) label->setText(" ABDÜLKADİR ÇAĞLAYANOĞULLARI");
            form.LGELOKUL->setText(" KADIKÖY İNTAŞ ANADOLU ÖĞRETMEN LİSESİ VE MESLEK OKULU");
            form.LACK->setText(QString(400, u'ş'));
            form.status(QString(400, u'ğ'));
            // What a clerk reads out must never be shortened.
            for (const auto& [label, text] : {std::pair<QLabel*, QString>{form.LTEL, " 0216 345 67 89"},
                                              {form.LVGSM, " 0532 123 45 67"},
                                              {form.LTCNO, " 12345678901"},
                                              {form.LKAYTAR, " 05.09.2026"},
                                              {form.LADSOYAD, "ABDÜLKADİR ÇAĞLAYANOĞULLARI"},
                                              {form.TBORC, "1.128.250,75"}}) {
                label->setText(text);
                QVERIFY2(label->fontMetrics().horizontalAdvance(text) <= label->contentsRect().width(),
                         qPrintable(label->objectName()));
            }
            QCoreApplication::processEvents();
            QCOMPARE(form.size(), size);
            QVERIFY(form.places() == before);
            QCOMPARE(cut_captions(form,
                                  [&](const QWidget* widget) {
                                      return widget->parentWidget() != form.panel_buttons && widget != form.TabloAcKapa;
                                  }),
                     "");
        }
    }

    void headings_stand_over_their_columns() {
        for (const int width : {1280, 1920}) {
            Screen form({width, 700});
            form.TABLO->set_widths({500, 700, 2500});
            form.FTahsil_Tablo2->set_widths({250, 1000, 1000, 1200, 2600, 1, 1430});
            form.FTahsil_TABLO4->set_widths({960, 1080, 3240, 960, 960});
            const auto off = [&](const GridView* grid, int column, const char* heading) {
                QCoreApplication::processEvents();
                const int left = grid->viewport()->mapTo(&form, QPoint(grid->columnViewportPosition(column), 0)).x();
                const QRect label = place_in(form, *form.findChild<QLabel*>(heading));
                return std::max(std::abs(left - label.left()),
                                std::abs(left + grid->columnWidth(column) - 1 - label.right()));
            };
            QVERIFY(off(form.TABLO, 1, "bslk_1") <= 2);
            form.panel_goster(Kurvo::Panel::Tahsil);
            QVERIFY(off(form.FTahsil_Tablo2, 1, "open_heading_1") <= 2);
            QVERIFY(off(form.FTahsil_Tablo2, 6, "open_heading_6") <= 2);
            form.second_stage();
            QVERIFY(off(form.FTahsil_TABLO4, 1, "correction_heading_1") <= 2);
            QVERIFY(off(form.FTahsil_TABLO4, 4, "correction_heading_4") <= 2);
        }
    }

    void number_and_term_are_safe() {
        Screen form;
        const auto ground = [&] { return form.LONO->grab().toImage().pixelColor(form.LONO->width() - 8, 8); };
        const QColor before = ground();
        form.mark_number_box(true);
        QVERIFY(ground().green() < before.green() - 20);
        form.mark_number_box(false);
        QCOMPARE(ground(), before);

        form.SDONEM->addItems({"2026", "2025"});
        form.SDONEM->setFocus();
        const QSignalSpy switched(form.SDONEM, &QComboBox::activated);
        const QPointF place = form.SDONEM->rect().center();
        QWheelEvent down(place, form.SDONEM->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(form.SDONEM, &down);
        QCOMPARE(form.SDONEM->currentText(), QStringLiteral("2026"));
        QCOMPARE(switched.count(), 0);
        QTest::keyClick(form.SDONEM, Qt::Key_Down);
        QCOMPARE(switched.count(), 1);
    }
};

static const Registered<FormTest> registered;
#include "form_test.moc"
