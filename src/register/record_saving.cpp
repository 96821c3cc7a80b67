#include "register/record_saving.h"

#include "fees/automatic_plan.h"
#include "fees/payment_forms.h"
#include "fees/plan_grid.h"
#include "platform/grid_view.h"
#include "platform/numbers.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "register/record_controls.h"
#include "register/record_lists.h"
#include "session/blank_text.h"

#include <utility>

namespace {

const QString attention = QStringLiteral("Dikkat");
constexpr qsizetype telephone_length = 10;
constexpr qsizetype school_length = 40, class_length = 4, special_code_length = 3;

// What a list entry "number, blank, words" and a typed number have in common.
Money leading_number(const QString& text) {
    return numbers::money(QStringView(text).left(text.indexOf(u' ')));
}

std::int64_t sum_of_instalments(const GridView& plan) {
    std::int64_t sum = 0;
    for (int row = 0; row < plan.rows(); ++row) sum += numbers::whole(plan.text(row, plan_grid::tutar)).rounded();
    return sum;
}

// One leading "0" counts only while nothing stands before it.
QString normalised_telephone(QString number) {
    if (number.startsWith(u'0')) number.remove(0, 1);
    return number.remove(u' ').remove(u'.').remove(u',');
}

}  // namespace

RecordSaving::RecordSaving(KurvoYeni& form, SessionContext& session, RecordForm& record, MainScreen screen,
                           std::function<void(const KurvoYeni&)> publish)
    : form_(form), session_(session), record_(record), screen_(screen), publish_(std::move(publish)) {
    on(form_.CommandKAYDET, &QPushButton::clicked, this, [this] { CommandKAYDET_Click(); });
}

void RecordSaving::CommandKAYDET_Click() {
    if (!has_number()) return;
    const bool fee_accepted = accept_fee_difference();
    if (!normalise_telephones() || !fee_accepted) return;
    const WaitCursor wait;
    const double number = record_.number();
    const QString saved = numbers::plain(number) + u' ' + form_.ADSOY->text().trimmed();
    ogrenci_yaz();
    if (!session_.remoteSchoolKey.isEmpty() && record_.published_values_differ()) publish_(form_);
    screen_.list.listeyi_yenile();
    screen_.show_student(numbers::plain(number));
    record_.CommandTEMIZLE_Click();
    form_.status(saved + QStringLiteral(" kaydedildi."));
}

bool RecordSaving::has_number() {
    if (record_.number() != 0) return true;
    prompt::tell(QStringLiteral("Öğrenci No Giriniz."), attention);
    form_.ONO->setEnabled(true);
    form_.ONO->setFocus();
    return false;
}

// Positive where the instalments are more than the discount leaves of the fee.
bool RecordSaving::accept_fee_difference() const {
    const Money fee = numbers::whole(form_.KTUTAR->text());
    const Money net = after_discount(fee, leading_number(form_.ISKONTO->currentText()));
    const std::int64_t difference = sum_of_instalments(*form_.TABLO2) - net.floor();
    return difference == 0 ||
           prompt::ask(QStringLiteral("Kayıt tutarı ile taksitler uyumsuz (") + QString::number(difference) +
                           QStringLiteral(").  Yine de kaydedilsin mi?"),
                       attention);
}

// Boxes before a wrong one keep what was made of them.
bool RecordSaving::normalise_telephones() {
    for (QLineEdit* box : {form_.TEL, form_.AGSMTEL, form_.BGSMTEL, form_.VGSM}) {
        if (box->text().trimmed().isEmpty()) continue;
        const QString number = normalised_telephone(box->text());
        if (number.size() != telephone_length) {
            prompt::tell(QStringLiteral("Hatalı telefon girmeyiniz."));
            return false;
        }
        box->setText(number);
    }
    return true;
}

void RecordSaving::ogrenci_yaz() {
    record_.trimle();
    record_controls::put_blanks(form_);
    const QString school = or_blank(form_.GELOKUL->currentText().trimmed().left(school_length));
    const QString special_code = or_blank(form_.OZKOD->currentText().trimmed().left(special_code_length));
    write_row(school, special_code);
    record_lists::learn(*form_.GELOKUL, record_lists::schools_file(session_), school);
    record_lists::learn(*form_.OZKOD, record_lists::special_codes_file(session_), special_code);
    ask_about_open_instalments();
}

void RecordSaving::store_student() {
    ogrenci_yaz();
    record_.kayitVar = record_.seek_student();
}

void RecordSaving::write_row(const QString& school, const QString& special_code) {
    store::Recordset& row = session_.studentTable;
    if (record_.kayitVar) {
        record_.seek_student();
        row.Edit();
    } else {
        row.AddNew();
        row["USER"] = form_.USER->text();
        for (const char* note : {"NOT", "NOT1", "NOT2"}) row[note] = " ";
        if (session_.collectionsAllowed == 0) row["KTUTAR"] = 0;
    }
    for (const RecordField& field : record_fields()) record_controls::write(form_, field, row);
    write_exceptions(row, school, special_code);
    row.Update();
}

void RecordSaving::write_exceptions(store::Recordset& row, const QString& school, const QString& special_code) const {
    row["SINIF"] = or_blank(form_.SNF->currentText().left(class_length).trimmed());
    row["GELOKUL"] = school;
    row["OZELKOD"] = special_code;
    row["ISKONTO"] = numbers::val(form_.ISKONTO->currentText());
    if (session_.collectionsAllowed == 1)
        row["KTUTAR"] = static_cast<double>(numbers::whole(form_.KTUTAR->text()).rounded());
    const QString lesson_table = form_.DTABLO->currentText();
    row["DTABLO"] = form_.DTABLO->currentIndex() <= 0 ? QStringLiteral(" ")
                                                      : lesson_table.left(lesson_table.indexOf(QStringLiteral(". ")));
}

// The student has just left.
void RecordSaving::ask_about_open_instalments() {
    if (!record_.eskiAyrilis.isEmpty() || form_.AYYER->text().trimmed().isEmpty()) return;
    const bool still_owed =
        prompt::ask(QStringLiteral("Kalan borçlar geçerli ise TAMAM, iptal edilecekse İPTAL tuşuna basınız."));
    if (!still_owed) cancel_open_instalments();
}

// Paid instalments stay as they are.
void RecordSaving::cancel_open_instalments() {
    const int cancelled = static_cast<int>(payment_forms().size()) - 1;
    store::WriteScope scope(session_.termDb);
    store::Recordset instalments = session_.termDb.OpenRecordset("Odeme");
    instalments.Index("OVX");
    store::scan_prefix(instalments, {record_.number()}, [&] {
        if (instalments["TUTAR"].number() - instalments["ODENEN"].number() <= 0) return;
        instalments.Edit();
        instalments["ODSEK"] = cancelled;
        instalments.Update();
    });
    scope.commit();
}
