#include "forms/kurvo.h"

#include "forms/captions.h"
#include "forms/column_widths.h"
#include "platform/screen_units.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>

#include <algorithm>

using screen_units::pixels;

namespace {

constexpr int button_count = 6;
constexpr int heading_height = 24;
constexpr int both_session_lists = 1400;  // pixels

// A style sheet looks at properties only when it is applied anew.
void set_look(QWidget* widget, const char* property, bool on) {
    if (widget->property(property).toBool() == on) return;
    widget->setProperty(property, on);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

// Labels over the visible columns of a grid: as wide as these, the stretching one taking what is left, and the place of
// the grid's scroll bar free at the end.
void set_heading_widths(QFrame* headings, const std::vector<int>& twips, std::size_t stretching) {
    auto* row = static_cast<QHBoxLayout*>(headings->layout());
    int place = 0;
    for (std::size_t i = 0; i < twips.size(); ++i) {
        if (twips[i] <= 1) continue;
        if (i == stretching)
            row->setStretch(place, 1);
        else
            row->itemAt(place)->widget()->setFixedWidth(pixels(twips[i]));
        ++place;
    }
    row->addSpacing(headings->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    headings->setFixedHeight(heading_height);
}

}  // namespace

Kurvo::Kurvo(QWidget* parent) : QWidget(parent) {
    draw(this);
    setObjectName(QStringLiteral("Kurvo"));
    bslk = {bslk_0, bslk_1, bslk_2};
    Shape = {Shape_0, Shape_1};
    FToplu_OO = {nullptr, nullptr, nullptr, nullptr, FToplu_OO_4, FToplu_OO_5, FToplu_OO_6, FToplu_OO_7};
    ChkY = {ChkY_0, ChkY_1, ChkY_2, ChkY_3, ChkY_4};
    bas = {bas_0, bas_1, bas_2, bas_3, bas_4, bas_5, bas_6, bas_7, bas_8, bas_9};
    set_up_controls();
    set_up_list_column();
    set_up_collections();
    set_up_panels();
    set_up_shortcuts();
    watch(this);
}

Kurvo::~Kurvo() = default;

void Kurvo::set_up_controls() {
    captions::name_fields(this);
    captions::tell_shortcuts(this);
    CommandSBUL->setToolTip(QStringLiteral("Öğrenciyi ismiyle bul (Ctrl+F, Alt+A)"));
    TABLO->setAccessibleName(QStringLiteral("Öğrenci listesi"));
    TABLO_SBUL->setAccessibleName(QStringLiteral("Bulunan öğrenciler"));
    TabloAcKapa->setAccessibleName(QStringLiteral("Listeyi aç veya kapat"));
    TabloAcKapa->setToolTip(QStringLiteral("Listeyi aç veya kapat"));
    FTahsil_Tablo2->setAccessibleName(QStringLiteral("Açık taksitler"));
    FTahsil_TABLO4->setAccessibleName(QStringLiteral("Tahsil edilecek taksitler"));
    for (QComboBox* list : findChildren<QComboBox*>()) list->installEventFilter(this);
    SSTab1->setAccessibleName(QStringLiteral("Öğrencinin bilgileri"));
    SSTab2->setAccessibleName(QStringLiteral("Sınavlar"));
}

// As wide as the list's columns with its scroll bar, so that nothing of a name is lost and nothing is wasted.
void Kurvo::set_up_list_column() {
    const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    int width = scroll_bar + 2 * TABLO->frameWidth();
    for (const int twips : column_widths::list) width += pixels(twips);
    for (const std::size_t column : {0, 1}) bslk[column]->setFixedWidth(pixels(column_widths::list[column]));
    list_band->setFixedSize(width, heading_height);
    TABLO->setFixedWidth(width);
    TABLO->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QSizePolicy keeps_its_place = TABLO->sizePolicy();
    keeps_its_place.setRetainSizeWhenHidden(true);
    TABLO->setSizePolicy(keeps_its_place);
    panel_buttons->setFixedSize(width, button_count * pixels(button_step));
    for (QPushButton* button :
         {CommandYENI, CommandTAHSILAT, CommandDEVAMSIZLIK, CommandETUD, CommandNOT, CommandTOPLU})
        place_button(button, first_button_top);
}

void Kurvo::set_up_collections() {
    set_heading_widths(open_headings, column_widths::open, 4);
    set_heading_widths(correction_headings, column_widths::chosen, 2);
    FTahsil_Tablo2->set_stretch_column(4);
    FTahsil_TABLO4->set_stretch_column(2);
    FTahsil_Frame1->raise();
    FTahsil_Frame2->raise();
    Cel_In->raise();
    // What an overlay covers is out of reach for the keyboard too.
    FTahsil_Frame1->installEventFilter(this);
    FTahsil_Frame2->installEventFilter(this);
    CommandOK->installEventFilter(this);
}

void Kurvo::set_up_panels() {
    panels_ = {{Panel::SBUL, Frame_SBUL, CommandSBUL, 1080, 360},
               {Panel::Tahsil, Frame_Tahsil, CommandTAHSILAT, 120, 120},
               {Panel::Devam, Frame_Devam, CommandDEVAMSIZLIK, 120, 120},
               {Panel::Etud, Frame_Etud, CommandETUD, 120, 120},
               {Panel::Not, Frame_Not, CommandNOT, 120, 120},
               {Panel::Toplu, Frame_Toplu, CommandTOPLU, 120, 120},
               {Panel::Dosyadan, Frame_Dosyadan, CommandDOSYADAN, 120, 120}};
    CommandYAZF->raise();
    FToplu_FrameYaz->raise();
    TABLO_SBUL->set_stretch_column(2);
    QSizePolicy keeps_its_place = FSBUL_msg->sizePolicy();
    keeps_its_place.setRetainSizeWhenHidden(true);
    FSBUL_msg->setSizePolicy(keeps_its_place);
    for (const PanelPlace& place : panels_) {
        place.button->setCheckable(true);
        // A click by itself opens nothing: the button is pressed only while its panel is shown.
        connect(place.button, &QPushButton::clicked, this,
                [this, place] { place.button->setChecked(shown_panel_ == place.panel); });
    }
    Shape[1]->installEventFilter(this);
}

void Kurvo::set_up_shortcuts() {
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, this, &Kurvo::go_to_number);
    connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, this, &Kurvo::go_to_search);
}

void Kurvo::go_to_number() {
    if (!LONO->isEnabled()) return;
    LONO->setFocus(Qt::ShortcutFocusReason);
    LONO->selectAll();
}

void Kurvo::go_to_search() {
    if (!CommandSBUL->isEnabled()) return;
    CommandSBUL->setFocus(Qt::ShortcutFocusReason);
    CommandSBUL->click();
    if (shown_panel_ == Panel::SBUL) {
        FSBUL_soyad->setFocus(Qt::ShortcutFocusReason);
        FSBUL_soyad->selectAll();
    }
}

void Kurvo::panel_goster(Panel panel) {
    shown_panel_ = panel;
    for (const PanelPlace& place : panels_) {
        place.frame->setVisible(place.panel == panel);
        place.button->setChecked(place.panel == panel);
    }
    lay_out_panels();
}

// A margin moves left and top and narrows the panel by as much, so that right and bottom stay on the work area's.
void Kurvo::lay_out_panels() {
    for (const PanelPlace& place : panels_)
        place.frame->setGeometry(Shape[1]->rect().adjusted(pixels(place.margin_x), pixels(place.margin_y), 0, 0));
    // The student's sessions and the day board stand side by side where both fit with all their columns.
    session_lists->setDirection(Frame_Etud->width() > both_session_lists ? QBoxLayout::LeftToRight
                                                                         : QBoxLayout::TopToBottom);
}

void Kurvo::kilitle(const std::vector<QWidget*>& controls) {
    for (QWidget* control : controls) {
        const auto held = std::ranges::find(locked_, control, &Lock::control);
        if (held != locked_.end()) {
            ++held->count;
            continue;
        }
        locked_.push_back({control, 1, control->isEnabledTo(control->parentWidget())});
        control->setEnabled(false);
    }
}

void Kurvo::kilidi_ac(const std::vector<QWidget*>& controls) {
    for (QWidget* control : controls) {
        const auto held = std::ranges::find(locked_, control, &Lock::control);
        if (held == locked_.end() || --held->count > 0) continue;
        control->setEnabled(held->was_enabled);
        locked_.erase(held);
    }
}

std::vector<QWidget*> Kurvo::student_choice() const {
    return {CommandYENI, CommandTAHSILAT, CommandDEVAMSIZLIK,
            CommandETUD, CommandNOT,      CommandTOPLU,
            CommandSBUL, CommandDOSYADAN, TABLO,
            bslk[0],     bslk[1],         bslk[2],
            LONO,        SDONEM};
}

void Kurvo::place_button(QPushButton* button, int top_twips) {
    button->setGeometry(0, pixels(top_twips - first_button_top), panel_buttons->width(), pixels(button_step));
    set_look(button, "first", top_twips == first_button_top);
}

void Kurvo::mark_number_box(bool differs) {
    set_look(LONO, "differs", differs);
}

void Kurvo::status(const QString& text) {
    status_line->setText(text);
}

// Locked by a form above it, whose unsaved record would be lost; the window manager closes it all the same.
void Kurvo::closeEvent(QCloseEvent* event) {
    if (!isEnabled()) return event->ignore();
    emit closing();
    event->accept();
}

// Esc leaves an overlay by its own way out, if it has one that may be used.
void Kurvo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        for (QPushButton* way_out : {CommandGERI, CommandVAZGECY})
            if (way_out->isVisible() && way_out->isEnabled()) return way_out->click();
    QWidget::keyPressEvent(event);
}

bool Kurvo::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Shape[1] && event->type() == QEvent::Resize) lay_out_panels();
    // A wheel that misses the list of students must not leave the term, nor change the teacher of a session.
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched) != nullptr) return true;
    // The button that posts comes up under the pointer that has just pressed CommandTAHSIL: the second half of a
    // double click must not post.
    if (watched == CommandOK && event->type() == QEvent::MouseButtonDblClick) return true;
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        const bool uncovered = event->type() == QEvent::HideToParent;
        if (watched == FTahsil_Frame1) FTahsil_Tablo2->setEnabled(uncovered);
        if (watched == FTahsil_Frame2) FTahsil_TABLO4->setEnabled(uncovered);
    }
    return QWidget::eventFilter(watched, event);
}
