#include "form_tests.h"
#include "forms/kurvo.h"
#include "forms/look.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <map>

namespace {

// The form at a size, with every panel button that a user may have, and shown.
class Screen : public Kurvo {
public:
    explicit Screen(const QSize& size = {1366, 700}) {
        int top = 480;
        for (QPushButton* button : panel_column()) {
            button->show();
            place_button(button, top);
            top += 240;
        }
        resize(size);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this)) qWarning("the form is not active");
    }

    std::vector<QPushButton*> panel_column() const {
        return {CommandYENI, CommandTAHSILAT, CommandDEVAMSIZLIK, CommandETUD, CommandNOT, CommandTOPLU};
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

QRect place_in(const QWidget& form, const QWidget& widget) {
    return {widget.mapTo(&form, QPoint(0, 0)), widget.size()};
}

std::map<QString, QRect> places(const Kurvo& form) {
    std::map<QString, QRect> found;
    for (const QWidget* widget : form.findChildren<QWidget*>())
        if (widget->isVisible() && !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"))
            found[widget->objectName()] = place_in(form, *widget);
    return found;
}

// Words of which a part is missing: captions and buttons narrower or lower than what they say.
QStringList cut_captions(const Kurvo& form) {
    QStringList cut;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        const bool says = qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
        if (!says || !widget->isVisible() || qobject_cast<const ElidedLabel*>(widget) || widget == form.Image1)
            continue;
        const QSize needed = widget->minimumSizeHint();
        const bool cell_button = widget->parentWidget() == form.panel_buttons || widget == form.TabloAcKapa;
        if (widget->width() < needed.width() || (!cell_button && widget->height() < needed.height()))
            cut.append(widget->objectName());
    }
    return cut;
}

}  // namespace

void FormTest::initTestCase() {
    look::apply(*qApp);
}

// 1080 and 360, 120 and 120 twips inside the left and top edge; the right and bottom edges are the work area's.
void FormTest::panel_takes_its_part_of_the_work_area() {
    Screen form;
    form.panel_goster(Kurvo::Panel::SBUL);
    form.resize(1600, 900);
    QCoreApplication::processEvents();
    const QRect area = form.Shape[1]->rect();
    QCOMPARE(form.Frame_SBUL->geometry(), QRect(90, 30, area.width() - 90, area.height() - 30));
    QCOMPARE(form.Frame_Tahsil->geometry(), QRect(10, 10, area.width() - 10, area.height() - 10));
    QVERIFY(form.Frame_SBUL->isVisible());
    QVERIFY(!form.Frame_Tahsil->isVisible());
}

void FormTest::panel_button_is_pressed_while_its_panel_is_shown() {
    Screen form;
    QTest::mouseClick(form.CommandTAHSILAT, Qt::LeftButton);
    QVERIFY2(!form.CommandTAHSILAT->isChecked(), "a click that opened nothing leaves the button up");
    connect(form.CommandTAHSILAT, &QPushButton::clicked, &form, [&] { form.panel_goster(Kurvo::Panel::Tahsil); });
    for (int click = 0; click < 2; ++click) {
        QTest::mouseClick(form.CommandTAHSILAT, Qt::LeftButton);
        QVERIFY(form.CommandTAHSILAT->isChecked());
    }
    form.panel_goster(Kurvo::Panel::SBUL);
    QVERIFY(!form.CommandTAHSILAT->isChecked());
    QVERIFY(form.CommandSBUL->isChecked());
}

void FormTest::panel_buttons_close_up() {
    Screen form;
    const std::vector<QPushButton*> column = form.panel_column();
    for (std::size_t i = 0; i < column.size(); ++i)
        QCOMPARE(column[i]->geometry(), QRect(0, static_cast<int>(i) * 20, form.panel_buttons->width(), 20));
    QCOMPARE(place_in(form, *form.CommandYENI).width(), form.TABLO->width());
}

void FormTest::locks_count() {
    Screen form;
    form.CommandNOT->setEnabled(false);
    form.kilitle({form.LONO, form.CommandNOT});
    form.kilitle({form.LONO, form.TABLO});
    form.kilidi_ac({form.LONO, form.CommandNOT});
    QVERIFY2(!form.LONO->isEnabled(), "the second lock still holds");
    QVERIFY2(!form.CommandNOT->isEnabled(), "it was disabled before the lock");
    form.kilidi_ac({form.LONO, form.TABLO, form.SDONEM});
    QVERIFY(form.LONO->isEnabled());
    QVERIFY(form.TABLO->isEnabled());
    QVERIFY(form.SDONEM->isEnabled());
    form.kilitle({form.LONO});
    QVERIFY(!form.LONO->isEnabled());
}

void FormTest::overlay_takes_what_it_covers_out_of_reach() {
    Screen form;
    form.second_stage();
    QVERIFY(!form.FTahsil_Tablo2->isEnabled());
    QVERIFY(place_in(form, *form.FTahsil_Frame1).contains(place_in(form, *form.FTahsil_Tablo2)));
    form.FTahsil_Frame2->show();
    QVERIFY(!form.FTahsil_TABLO4->isEnabled());
    form.FTahsil_Frame2->hide();
    form.FTahsil_Frame1->hide();
    QVERIFY(form.FTahsil_Tablo2->isEnabled());
    QVERIFY(form.FTahsil_TABLO4->isEnabled());
}

void FormTest::keys_respect_a_lock() {
    Screen form;
    connect(form.CommandSBUL, &QPushButton::clicked, &form, [&] { form.panel_goster(Kurvo::Panel::SBUL); });
    form.panel_goster(Kurvo::Panel::Tahsil);
    form.ODENEN->setFocus();
    form.kilitle(form.student_choice());
    QTest::keyClick(form.ODENEN, Qt::Key_F2);
    QTest::keyClick(form.ODENEN, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(form.ODENEN->hasFocus());
    QVERIFY(form.Frame_Tahsil->isVisible());
    form.kilidi_ac(form.student_choice());
    QTest::keyClick(form.ODENEN, Qt::Key_F2);
    QVERIFY(form.LONO->hasFocus());
    QTest::keyClick(form.LONO, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(form.FSBUL_soyad->hasFocus());
}

void FormTest::escape_leaves_only_an_overlay_with_a_way_out() {
    Screen form;
    QSignalSpy back(form.CommandGERI, &QPushButton::clicked);
    form.panel_goster(Kurvo::Panel::Tahsil);
    form.ODENEN->setFocus();
    QTest::keyClick(form.ODENEN, Qt::Key_Escape);
    form.invoice_details();
    form.fADSOY->setFocus();
    QTest::keyClick(form.fADSOY, Qt::Key_Escape);
    QCOMPARE(back.count(), 0);
    form.FTahsil_Frame2->hide();
    form.CommandGERI->show();
    form.KFISNO->setFocus();
    QTest::keyClick(form.KFISNO, Qt::Key_Escape);
    QCOMPARE(back.count(), 1);
    QVERIFY(form.isVisible());
}

void FormTest::mnemonics_do_not_conflict() {
    Screen form;
    const std::vector<std::function<void()>> states{[&] { form.panel_goster(Kurvo::Panel::SBUL); },
                                                    [&] { form.panel_goster(Kurvo::Panel::Tahsil); },
                                                    [&] { form.second_stage(); }, [&] { form.invoice_details(); }};
    for (const auto& enter : states) {
        enter();
        std::map<QString, QString> taken;
        for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
            const QString key = button->shortcut().toString();
            if (!button->isVisible() || key.isEmpty()) continue;
            QVERIFY2(!taken.contains(key), qPrintable(key + ": " + taken[key] + ", " + button->objectName()));
            taken[key] = button->objectName();
        }
    }
}

void FormTest::every_control_has_a_name() {
    Screen form;
    QStringList nameless;
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool says = (button != nullptr && !button->text().isEmpty()) || qobject_cast<const QLabel*>(widget);
        // Parts that a control of Qt makes for itself have no name of ours.
        const bool ours = !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_");
        if (ours && !says && widget->focusPolicy() != Qt::NoFocus && widget->accessibleName().isEmpty())
            nameless.append(widget->objectName());
    }
    QCOMPARE(nameless.join(u' '), QString());
}

void FormTest::long_texts_move_and_cut_nothing_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("a screen of 1920 at 150 %") << QSize(1280, 660);
    QTest::newRow("1366 by 768 without task bar and title") << QSize(1366, 700);
    QTest::newRow("1920 by 1080") << QSize(1920, 1040);
}

void FormTest::long_texts_move_and_cut_nothing() {
    QFETCH(QSize, size);
    Screen form(size);
    form.second_stage();
    QCoreApplication::processEvents();
    const auto before = places(form);
    for (QLabel* label : {form.LVELI, form.LANNE, form.LBABA}) label->setText(" ABDÜLKADİR ÇAĞLAYANOĞULLARI");
    form.LADSOYAD->setText("ABDÜLKADİR ÇAĞLAYANOĞULLARI");
    form.LGELOKUL->setText(" KADIKÖY İNTAŞ ANADOLU ÖĞRETMEN LİSESİ VE MESLEK OKULU");
    form.LSNF->setText("12A Sayısal hızlandırma grubu, hafta içi sabah");
    form.LACK->setText(QString(400, u'ş'));
    form.TBORC->setText("1.128.250,75");
    form.status(QString(400, u'ğ'));
    QCoreApplication::processEvents();
    QCOMPARE(form.size(), size);
    QVERIFY(places(form) == before);
    QCOMPARE(cut_captions(form).join(u' '), QString());
    // What a clerk reads out must never be shortened.
    for (const auto& [label, text] :
         std::initializer_list<std::pair<QLabel*, QString>>{{form.LTEL, " 0216 345 67 89"},
                                                            {form.LVGSM, " 0532 123 45 67"},
                                                            {form.LTCNO, " 12345678901"},
                                                            {form.LKAYTAR, " 05.09.2026"},
                                                            {form.LADSOYAD, form.LADSOYAD->text()},
                                                            {form.TBORC, "1.128.250,75"}})
        QVERIFY2(label->fontMetrics().horizontalAdvance(text) <= label->contentsRect().width(),
                 qPrintable(label->objectName()));
}

void FormTest::headings_stand_over_their_columns_data() {
    QTest::addColumn<int>("width");
    QTest::newRow("narrow") << 1280;
    QTest::newRow("wide") << 1920;
}

void FormTest::headings_stand_over_their_columns() {
    QFETCH(int, width);
    Screen form({width, 700});
    form.TABLO->set_widths({500, 700, 2500});
    form.FTahsil_Tablo2->set_widths({250, 1000, 1000, 1200, 2600, 1, 1430});
    form.FTahsil_TABLO4->set_widths({960, 1080, 3240, 960, 960});
    const auto off = [&](GridView* grid, int column, const char* heading) {
        const QRect cell = {grid->viewport()->mapTo(&form, QPoint(grid->columnViewportPosition(column), 0)),
                            QSize(grid->columnWidth(column), 1)};
        const QRect label = place_in(form, *form.findChild<QLabel*>(QLatin1String(heading)));
        return std::max(std::abs(cell.left() - label.left()), std::abs(cell.right() - label.right()));
    };
    QCoreApplication::processEvents();
    QVERIFY(off(form.TABLO, 1, "bslk_1") <= 2);
    form.panel_goster(Kurvo::Panel::Tahsil);
    QCoreApplication::processEvents();
    QVERIFY(off(form.FTahsil_Tablo2, 1, "open_heading_1") <= 2);
    QVERIFY(off(form.FTahsil_Tablo2, 6, "open_heading_6") <= 2);
    form.second_stage();
    QCoreApplication::processEvents();
    QVERIFY(off(form.FTahsil_TABLO4, 1, "correction_heading_1") <= 2);
    QVERIFY(off(form.FTahsil_TABLO4, 4, "correction_heading_4") <= 2);
}

void FormTest::wrong_number_is_seen() {
    Screen form;
    const auto ground = [&] { return form.LONO->grab().toImage().pixelColor(form.LONO->width() - 8, 8); };
    const QColor before = ground();
    form.mark_number_box(true);
    QVERIFY(ground().green() < before.green() - 20);
    form.mark_number_box(false);
    QCOMPARE(ground(), before);
}
