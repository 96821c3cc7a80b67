#include "register/record_form.h"

#include "platform/clock.h"
#include "platform/control_events.h"
#include "platform/date_picker.h"
#include "platform/file_choice.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "platform/turkish.h"
#include "register/record_controls.h"
#include "register/record_lists.h"

#include <algorithm>
#include <utility>

namespace {

// The signs that quote texts have no place in a name.
bool is_quote(QChar key) {
    return key == u'"' || key == u'\'';
}

}  // namespace

RecordForm::RecordForm(KurvoYeni& form, SessionContext& session, std::function<void()> taksit_listele)
    : form_(form), session_(session), taksit_listele_(std::move(taksit_listele)) {
    control_events::on_key_press(form_.ONO, control_events::digits_only);
    control_events::on_lost_focus(form_.ONO, this, [this] { ONO_LostFocus(); });
    control_events::on_key_press(form_.ADSOY, [this](QChar key) { return ADSOY_KeyPress(key); });
    on(form_.CommandSON, &QPushButton::clicked, this, [this] { CommandSON_Click(); });
    on(form_.CommandTEMIZLE, &QPushButton::clicked, this, [this] { CommandTEMIZLE_Click(); });
    on(form_.CommandONAME, &QPushButton::clicked, this, [this] { CommandONAME_Click(); });
}

void RecordForm::open(double number) {
    apply_rights();
    form_.USER->setText(session_.userCode);
    form_.AYTAR->set_parts(2000, 1, 1);
    for (DatePicker* date : {form_.KAYTAR, form_.VADE}) date->setDate(clock_source::today());
    form_.OdeOpt[0]->setChecked(true);
    form_.YUVAR->clear();
    record_lists::fill(form_, session_);
    reset_totals();
    session_.studentSelected = false;
    if (number <= 0) {
        form_.ONO->setFocus();
        form_.show();
        return;
    }
    // The number is locked at once, so the work begins at the name.
    form_.ADSOY->setFocus();
    form_.show();
    form_.ONO->setText(numbers::plain(number));
    ONO_LostFocus();
}

void RecordForm::apply_rights() {
    if (session_.collectionsAllowed == 0)
        for (QPushButton* button : {form_.CommandEKLE, form_.CommandYARAT, form_.CommandSENET})
            button->setEnabled(false);
    if (session_.mayChangeFees == u"0")
        for (QWidget* control : std::initializer_list<QWidget*>{form_.CommandSIL, form_.AYYER, form_.AYTAR})
            control->setEnabled(false);
    form_.SAKLA->setVisible(session_.hideArchived != u"1");
}

void RecordForm::ONO_LostFocus() {
    form_.status({});
    kayitVar = seek_student();
    if (kayitVar)
        load_student();
    else
        enable_plan(true);
    trimle();
    form_.EBORC->setText(form_.YBORC->text());
    form_.EODENEN->setText(form_.YODENEN->text());
    form_.EKALAN->setText(form_.YKALAN->text());
    form_.EGECIKEN->setText(form_.YGECIKEN->text());
    take_snapshots();
    form_.ONO->setEnabled(false);
}

// Once a fee stands, only an entitled user may touch it or the plan.
void RecordForm::load_student() {
    session_.studentSelected = true;
    const bool out_of_reach = form_.SAKLA->isHidden() && session_.studentTable["SAKLA"].whole_number() == 1;
    if (!out_of_reach) dosyadan_aktar();
    if (numbers::whole(form_.KTUTAR->text()) == Money())
        form_.KTUTAR->clear();
    else
        enable_plan(session_.mayChangeFees == u"1");
}

void RecordForm::enable_plan(bool enabled) {
    form_.KTUTAR->setEnabled(enabled);
    form_.TABLO2->setEnabled(enabled);
    if (enabled && session_.collectionsAllowed != 1) return;
    for (QPushButton* button : {form_.CommandEKLE, form_.CommandYARAT, form_.CommandSENET}) button->setEnabled(enabled);
}

void RecordForm::dosyadan_aktar() {
    store::Recordset& row = session_.studentTable;
    for (const RecordField& field : record_fields())
        if (field.kind != FieldKind::untouched) record_controls::show(form_, field, row[field.field].value());
    record_controls::select_by_prefix(*form_.SNF, row["SINIF"].text());
    form_.GELOKUL->setEditText(row["GELOKUL"].text());
    form_.OZKOD->setEditText(row["OZELKOD"].text());
    form_.USER->setText(row["USER"].text());
    if (session_.collectionsAllowed == 1)
        form_.KTUTAR->setText(numbers::picture(Money::from_number(row["KTUTAR"].number())));
    form_.ISKONTO->setEditText(row["ISKONTO"].text());
    record_controls::select_by_prefix(*form_.DTABLO, row["DTABLO"].text());
    eskiAyrilis = row["AYYER"].text().trimmed();
    if (session_.collectionsAllowed > 0) taksit_listele_();
    form_.CommandNODGS->show();
}

void RecordForm::form_temizle() {
    session_.studentSelected = false;
    form_.CommandNODGS->hide();
    // A plan panel left open belongs to the student who goes; what it disabled comes back before the next is locked.
    if (!form_.Frame3->isHidden()) form_.CommandGERI3->click();
    form_.KTUTAR->setEnabled(true);
    form_.ONO->setEnabled(true);
    record_controls::clear(form_);
    form_.USER->setText(session_.userCode);
    form_.VADE->setDate(clock_source::today());
    form_.ODSEK->setCurrentIndex(0);
    form_.TABLO2->set_rows(0);
    for (QLineEdit* box : {form_.Sno, form_.TUTAR, form_.ACK}) box->clear();
    form_.TFARK->clear();
    reset_totals();
    take_snapshots();
}

void RecordForm::trimle() {
    record_controls::trim(form_);
}

void RecordForm::reset_totals() {
    for (QLineEdit* total : {form_.YBORC, form_.YODENEN, form_.YKALAN, form_.YGECIKEN, form_.EBORC, form_.EODENEN,
                             form_.EKALAN, form_.EGECIKEN})
        total->setText(QStringLiteral("0"));
}

// The old value stands as the control's tooltip, where the clerk sees it and the save compares it.
void RecordForm::take_snapshots() {
    for (const RecordField& field : record_fields())
        if (field.has(RecordField::watched))
            control_of(field, form_)->setToolTip(record_controls::content(form_, field));
}

bool RecordForm::published_values_differ() const {
    return std::ranges::any_of(record_fields(), [this](const RecordField& field) {
        return field.has(RecordField::watched) &&
               control_of(field, form_)->toolTip().trimmed() != record_controls::content(form_, field).trimmed();
    });
}

// The number is not reserved by anything until the row is saved.
void RecordForm::CommandSON_Click() {
    form_temizle();
    store::Recordset& students = session_.studentTable;
    double last = 0;
    if (students.has_rows()) {
        students.MoveLast();
        last = students["ONO"].number();
    }
    form_.ONO->setText(numbers::plain(last + 1));
    form_.ONO->setFocus();
}

void RecordForm::CommandTEMIZLE_Click() {
    form_temizle();
    form_.ONO->clear();
    form_.ONO->setFocus();
}

QChar RecordForm::ADSOY_KeyPress(QChar key) const {
    if (is_quote(key)) return {};
    return session_.upperCaseNames == u"1" ? turkish::capital(key) : key;
}

// A photo inside the photo folder is kept by its bare name, one elsewhere by its full path.
void RecordForm::CommandONAME_Click() {
    const QString chosen = file_choice::open(session_.photoFolder);
    if (chosen.isEmpty()) return;
    const bool in_folder = !session_.photoFolder.isEmpty() && chosen.startsWith(session_.photoFolder);
    form_.RESIM->setText(in_folder ? chosen.mid(session_.photoFolder.size()) : chosen);
}

double RecordForm::number() const {
    return numbers::val(form_.ONO->text());
}

bool RecordForm::seek_student() {
    session_.studentTable.Seek("=", {number()});
    return !session_.studentTable.NoMatch();
}
