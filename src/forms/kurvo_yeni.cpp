#include "forms/kurvo_yeni.h"

#include "forms/captions.h"
#include "forms/record_blocks.h"
#include "forms/record_fields.h"
#include "forms/typing_limit.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

constexpr int three_columns_from = 1800;  // pixels of page width

}  // namespace

KurvoYeni::KurvoYeni(QWidget* parent) : QWidget(parent, Qt::Window) {
    KurvoYeniForm::setupUi(this);
    setObjectName(u"KurvoYeni"_s);
    FrameOdemeler::setupUi(payments_place);
    reading_order_ = RecordBlocks(*this, make_controls()).build();
    set_up_payments();
    build_overlays();
    // The wheel scrolls the page and changes no choice on its way.
    for (QComboBox* list : findChildren<QComboBox*>()) list->installEventFilter(this);
    limit_typing();
    captions::name_fields(this);
    captions::tell_shortcuts(this);
    set_tab_order();
    DefaultButtonRule::watch(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { keep_in_sight(now); });
    arrange_columns();
}

// The focus moves once more while the controls go, when this form is none any longer.
KurvoYeni::~KurvoYeni() {
    disconnect(qApp, nullptr, this, nullptr);
}

// What the .ui files do not hold is made here, each control with its name. Returns all of the fields by name.
std::map<QString, QWidget*> KurvoYeni::make_controls() {
    std::map<QString, QWidget*> controls;
    for (const RecordField& field : record_fields()) {
        std::visit(
            [&](auto member) {
                if constexpr (!std::is_same_v<decltype(member), std::monostate>) {
                    using Control = std::remove_pointer_t<std::remove_reference_t<decltype(this->*member)>>;
                    const QString name = QLatin1String(field.control);
                    QWidget* const drawn = findChild<QWidget*>(name);
                    if (drawn == nullptr) {
                        this->*member = new Control(this);
                        (this->*member)->setObjectName(name);
                    }
                    controls[name] = drawn == nullptr ? this->*member : drawn;
                }
            },
            field.member);
    }
    for (const auto& [button, name, text] :
         {std::tuple(&CommandONAME, "CommandONAME", u"Optik form dosyasını bul"_s),
          std::tuple(&CommandSERVISBUL, "CommandSERVISBUL", u"Parametreleri Oluştur"_s)}) {
        *button = new QPushButton(text, this);
        (*button)->setObjectName(QLatin1String(name));
        controls[QLatin1String(name)] = *button;
    }
    OO[4] = OO_4, OO[5] = OO_5, OO[6] = OO_6, OO[7] = OO_7;
    for (QComboBox* combo : {GELOKUL, OZKOD}) {
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setCompleter(nullptr);
    }
    // A list with long entries does not widen its block.
    for (QComboBox* combo : {SNF, GELOKUL, OZKOD, DTABLO, BOLUM, VERNEDEN, GRUP, CINSIYET, KANRH}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(6);
    }
    RESIM->setToolTip(u"Fotoğrafın tam ismi"_s);
    AYRI->setText(record_field("AYRI").caption);
    SAVBEL->setText(record_field("SAVBEL").caption);
    SAKLA->setAccessibleName(u"Gizli öğrenci"_s);
    SAKLA->setToolTip(u"Gizli öğrenci"_s);
    for (QLineEdit* figure : {OO_4, OO_5, OO_6, OO_7, KRDSAY, AYAKKABI, SERVISNO, DURAKNO})
        figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return controls;
}

void KurvoYeni::set_up_payments() {
    TABLO2->set_widths({360, 1200, 840, 1080, 3360, 600});
    TABLO2->set_stretch_column(4);
    for (const int figures : {0, 2, 5}) TABLO2->set_alignment(figures, Qt::AlignRight | Qt::AlignVCenter);
    TABLO2->setAccessibleName(u"Ödeme planı"_s);
    TABLO2->setToolTip(u"Taksiti değiştirmek için tıklayınız, silmek için çift tıklayınız."_s);
    for (QWidget* widget : std::initializer_list<QWidget*>{KTUTAR, ISKONTO, Sno, VADE, TUTAR, ODSEK, ACK, CommandEKLE,
                                                           TABLO2, CommandYARAT, CommandSENET})
        reading_order_.push_back(widget);
}

void KurvoYeni::build_overlays() {
    const auto overlay = [this](const char* name, QPushButton*& cancel, auto setup) {
        auto* frame = new OverlayFrame(this);
        setup(frame);
        frame->setObjectName(QLatin1String(name));
        frame->setProperty("overlay", true);
        frame->set_cancel_button(cancel);
        frame->hide();
        return frame;
    };
    FrameNODGS = overlay("FrameNODGS", CommandNOVAZGEC, [this](QFrame* f) { FrameNodgs::setupUi(f); });
    Frame1 = overlay("Frame1", CommandTVAZGEC, [this](QFrame* f) { FrameTransfer::setupUi(f); });
    Frame2 = overlay("Frame2", CommandSGERI, [this](QFrame* f) { FrameSenet::setupUi(f); });
    FrameSozlesme = overlay("FrameSozlesme", CommandGeridon, [this](QFrame* f) { FrameClauses::setupUi(f); });
    FrameSERVIS = overlay("FrameSERVIS", ServisCIK, [this](QFrame* f) { FrameServis::setupUi(f); });
    TABLO->set_widths({840, 840, 11500});
    TABLO->setAccessibleName(u"Servisler ve duraklar"_s);
    Frame3 = new QFrame(page_contents);
    FramePlan::setupUi(Frame3);
    Frame3->setObjectName(u"Frame3"_s);
    Frame3->setProperty("overlay", true);
    Frame3->setAutoFillBackground(true);
    Frame3->hide();
    OdeOpt = {OdeOpt_0, OdeOpt_1};
    // A number that is typed stays as it is, also where an entry of the list begins with it.
    for (QComboBox* typed : {ISKONTO, OADET}) typed->setCompleter(nullptr);
    payments_place->installEventFilter(this);
    Frame3->installEventFilter(this);
}

void KurvoYeni::limit_typing() {
    for (const RecordField& field : record_fields()) {
        auto* box = control_as<QLineEdit>(field, *this);
        if (box == nullptr || field.limit == 0) continue;
        if (field.has(RecordField::telephone))
            typing_limit::set_telephone(box, field.limit);
        else
            typing_limit::set(box, field.limit);
    }
}

void KurvoYeni::set_tab_order() {
    for (QWidget* button : std::initializer_list<QWidget*>{CommandSON, CommandKAYDET, CommandTEMIZLE, CommandNODGS,
                                                           CommandAL, CommandSOZLESME, CommandYAZ, CommandSIL})
        reading_order_.push_back(button);
    for (std::size_t i = 1; i < reading_order_.size(); ++i) setTabOrder(reading_order_[i - 1], reading_order_[i]);
}

void KurvoYeni::status(const QString& text) {
    status_line->setText(text);
}

void KurvoYeni::closeEvent(QCloseEvent* event) {
    event->accept();
    hide();
    emit closed();
}

void KurvoYeni::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && Frame3->isVisible() && CommandGERI3->isEnabled())
        CommandGERI3->click();
    else
        QWidget::keyPressEvent(event);
}

void KurvoYeni::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange_columns();
    // Once the page has its new layout.
    QMetaObject::invokeMethod(
        this, [this] { keep_in_sight(focusWidget()); }, Qt::QueuedConnection);
}

// A control that gets the focus by a key or by the program comes into sight on a low screen. Nothing moves under a
// pressed mouse button, whose click would be lost.
void KurvoYeni::keep_in_sight(QWidget* control) {
    if (control == nullptr || !page_contents->isAncestorOf(control) || QApplication::mouseButtons() != Qt::NoButton)
        return;
    if (Frame3->isAncestorOf(control)) page->ensureWidgetVisible(TABLO2, 0, 0);
    page->ensureWidgetVisible(Frame3->isAncestorOf(control) ? Frame3 : control);
}

// Family and payments stand as a third column where there is room, and below the two others where there is not.
void KurvoYeni::arrange_columns() {
    const bool wide = width() >= three_columns_from;
    if (wide == wide_) return;
    wide_ = wide;
    page_grid->removeWidget(family_column);
    if (wide)
        page_grid->addWidget(family_column, 0, 2);
    else
        page_grid->addWidget(family_column, 1, 0, 1, 2);
    page_grid->setColumnStretch(0, 5);
    page_grid->setColumnStretch(1, 5);
    page_grid->setColumnStretch(2, wide ? 9 : 0);
}

// Over the fee row and upwards, so that the entry row that it speaks of stays in sight below it.
void KurvoYeni::place_plan_panel() {
    const QPoint entry = payments_place->mapTo(page_contents, QPoint(0, caption_VADE->y()));
    const QSize size(std::max(Frame3->sizeHint().width(), payments_place->width()), Frame3->sizeHint().height());
    Frame3->setGeometry(QRect(QPoint(entry.x(), std::max(0, entry.y() - size.height() - 4)), size));
    Frame3->raise();
}

bool KurvoYeni::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && qobject_cast<QComboBox*>(watched) != nullptr) {
        event->ignore();
        return true;
    }
    const bool moved = watched == payments_place && (event->type() == QEvent::Resize || event->type() == QEvent::Move);
    const bool shown = watched == Frame3 && event->type() == QEvent::ShowToParent;
    if (moved || shown) place_plan_panel();
    return QWidget::eventFilter(watched, event);
}
