#include "register/student_card.h"

#include "platform/clock.h"
#include "platform/control_events.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/picture_file.h"
#include "platform/rich_text.h"
#include "platform/slots.h"
#include "register/text_color.h"

#include <span>

namespace {

constexpr unsigned reminder_color = 0xC0FFFF;
constexpr unsigned leaver_color = 0x8080FF;

constexpr QStringView times_of_class[] = {u"", u"Hİ-Sabah", u"HS-Sabah", u"Hİ-Öğle", u"HS-Öğle"};
constexpr QStringView tracks[] = {u"", u"Sözel", u"Sayısal", u"Eşit Ağırlık", u"Yabancı Dil", u"KPSS", u"DGS", u"YÖS"};
// As the record form lists them, but a first-year pupil shows none.
constexpr QStringView grades[] = {u"",        u"2.Sınıf", u"3.Sınıf", u"4.Sınıf", u"5.Sınıf", u"6.Sınıf", u"7.Sınıf",
                                  u"8.Sınıf", u"Lise-1",  u"Lise-2",  u"Lise-3",  u"Lise-4",  u"Mezun"};

// A code that the list does not know leaves the label as it was.
void show_decoded(QLabel* label, const QString& code, std::span<const QStringView> names) {
    for (std::size_t i = 0; i < names.size(); ++i)
        if (code == QString::number(i)) label->setText(names[i].toString());
}

QString behind_blank(const QString& text) {
    return u' ' + text;
}

}  // namespace

StudentCard::StudentCard(Kurvo& kurvo, SessionContext& session, CardFollowers followers)
    : kurvo_(kurvo), session_(session), followers_(std::move(followers)) {
    control_events::on_got_focus(kurvo_.LONO, this, [this] { LONO_GotFocus(); });
    control_events::on_lost_focus(kurvo_.LONO, this, [this] { LONO_LostFocus(); });
    control_events::on_key_press(kurvo_.LONO, [this](QChar key) { return LONO_KeyPress(key); });
    on(kurvo_.LONO, &QLineEdit::textChanged, this, [this] { mark_number_box(); });
}

void StudentCard::LONO_GotFocus() {
    kurvo_.set_default_button(nullptr);
}

QChar StudentCard::LONO_KeyPress(QChar key) {
    kurvo_.set_default_button(nullptr);
    if (key != u'\r') return control_events::digits_only(key);
    LONO_LostFocus();
    return {};
}

// A clerk who enters one student after the other presses Enter twice: once for the card, once to save.
void StudentCard::LONO_LostFocus() {
    ogrenci_goster();
    kurvo_.set_default_button(followers_.default_button ? followers_.default_button() : nullptr);
}

void StudentCard::mark_number_box() {
    const QString typed = kurvo_.LONO->text();
    const bool nobody_asked_for = !session_.studentSelected && typed.isEmpty();
    kurvo_.mark_number_box(!nobody_asked_for && !session_.card_is_of(typed));
}

void StudentCard::ogrenci_goster() {
    session_.studentTable.Seek("=", {numbers::val(kurvo_.LONO->text())});
    if (session_.studentTable.NoMatch()) return;
    session_.studentSelected = true;
    session_.shownStudent = session_.studentTable["ONO"].whole_number();
    mark_number_box();
    session_.photoFile = rich_text::plain(field("RESIM"));
    foto_goster(session_.photoFile);
    fill_identity();
    fill_note();
    kurvo_.LKAYTAR->setText(behind_blank(dates::shown(field("KAYTAR"))));
    for (QLabel* total : {kurvo_.TTUTAR, kurvo_.TODENEN, kurvo_.TBORC}) total->clear();
    fill_codes();
    if (followers_.show_note) followers_.show_note();
    fill_invoice_defaults();
    run_followers();
}

void StudentCard::foto_goster(const QString& path) {
    kurvo_.Image1->clear();
    kurvo_.Image1->setToolTip({});
    if (path.trimmed().isEmpty()) return;
    try {
        const QString name = session_.photo_path(path);
        if (!paths::exists(name)) return;
        const QImage picture = picture_within(name, place_of_picture());
        if (!picture.isNull()) show_picture(picture);
    } catch (const std::exception&) {
        // A picture that cannot be read is no reason to keep a parent waiting: the card goes without.
    }
}

QSize StudentCard::place_of_picture() const {
    return kurvo_.Image1->contentsRect().size() * kurvo_.Image1->devicePixelRatioF();
}

void StudentCard::show_picture(const QImage& picture) {
    QPixmap shown =
        QPixmap::fromImage(picture.scaled(place_of_picture(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    shown.setDevicePixelRatio(kurvo_.Image1->devicePixelRatioF());
    kurvo_.Image1->setPixmap(shown);
}

QString StudentCard::field(std::string_view name) {
    return session_.studentTable[name].text();
}

void StudentCard::fill_identity() {
    const QString name = session_.studentTable["ADSOY"].required().text();
    kurvo_.LADSOYAD->setText(field("SAKLA") == u"1" ? name + u' ' : name);

    store::Recordset classes = session_.termDb.OpenRecordset("Sinif");
    classes.Index("SINIFX");
    const QString class_code = field("SINIF");
    classes.Seek("=", {class_code});
    kurvo_.LSNF->setText(class_code + u' ' + (classes.NoMatch() ? QString() : classes["ACK"].text()));
    classes.Close();

    const std::pair<QLabel*, std::string_view> lines[] = {
        {kurvo_.LTCNO, "VATNO"},   {kurvo_.LTEL, "TEL"},     {kurvo_.LVELI, "VELI"},    {kurvo_.LVTEL, "VTEL"},
        {kurvo_.LVGSM, "VGSM"},    {kurvo_.LANNE, "ANNE"},   {kurvo_.LATEL, "AEVTEL"},  {kurvo_.LAGSM, "AGSMTEL"},
        {kurvo_.LBABA, "BABA"},    {kurvo_.LBTEL, "BEVTEL"}, {kurvo_.LBGSM, "BGSMTEL"}, {kurvo_.LGELOKUL, "GELOKUL"},
        {kurvo_.LOKULNO, "OKULNO"}};
    for (const auto& [label, name_of_field] : lines) label->setText(behind_blank(field(name_of_field)));
}

void StudentCard::fill_note() {
    const QString reason_of_leaving = field("AYYER");
    const bool left = !reason_of_leaving.trimmed().isEmpty();
    kurvo_.LACK->setText(behind_blank(left ? reason_of_leaving : field("ACK")));
    set_text_color(*kurvo_.LACK, left ? leaver_color : reminder_color);
}

void StudentCard::fill_codes() {
    show_decoded(kurvo_.LGRUP, field("GRUP"), times_of_class);
    show_decoded(kurvo_.LBOLUM, field("BOLUM"), tracks);
    show_decoded(kurvo_.LDIN, field("DIN"), grades);
}

void StudentCard::fill_invoice_defaults() {
    kurvo_.fADSOY->setText(field("VELI"));
    kurvo_.fADRES1->setText(field("ADRES1"));
    kurvo_.fADRES2->setText(field("ADRES2"));
    kurvo_.fILCE->setText(field("AILCE"));
    kurvo_.fIL->setText(field("AIL"));
}

// A panel whose button the rights hide is not filled at all. The rights count also before the window is shown.
void StudentCard::run_followers() {
    const auto run = [](const std::function<void()>& follower) {
        if (follower) follower();
    };
    if (!kurvo_.CommandTOPLU->isHidden()) {
        run(followers_.show_overview);
        run(followers_.devam_toplu_doldur);
        run(followers_.etud_toplu_doldur);
        run(followers_.odeme_durumu);
    } else if (!kurvo_.CommandTAHSILAT->isHidden()) {
        run(followers_.odeme_durumu);
    }
    if (!kurvo_.CommandDEVAMSIZLIK->isHidden()) run(followers_.devam_gunu_yukle);
    if (!kurvo_.CommandETUD->isHidden()) run(followers_.etud_liste_doldur);
}
