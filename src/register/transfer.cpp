#include "register/transfer.h"

#include "platform/control_events.h"
#include "platform/slots.h"
#include "register/record_controls.h"
#include "register/record_form.h"

using namespace Qt::StringLiterals;

namespace {

std::int64_t number_in(const QLineEdit& box) {
    return store::Value(box.text()).whole_number();
}

// The students of another term, open for as long as the object lives.
class SourceTerm {
public:
    explicit SourceTerm(const QString& file)
        : term_(store::OpenDatabase(file)), students_(term_.OpenRecordset("Ogrenci")) {
        students_.Index("ONOX");
    }

    bool seek(std::int64_t number) {
        students_.Seek("=", {number});
        return !students_.NoMatch();
    }
    store::Recordset& students() { return students_; }

private:
    store::Database term_;
    store::Recordset students_;
};

}  // namespace

Transfer::Transfer(KurvoYeni& form, SessionContext& session, RecordForm& record)
    : form_(form), session_(session), record_(record) {
    on(form_.CommandAL, &QPushButton::clicked, this, [this] { CommandAL_Click(); });
    control_events::on_lost_focus(form_.FONO, this, [this] { FONO_LostFocus(); });
    control_events::on_lost_focus(form_.YONO, this, [this] { YONO_LostFocus(); });
    on(form_.CommandAKTAR, &QPushButton::clicked, this, [this] { CommandAKTAR_Click(); });
    on(form_.CommandTVAZGEC, &QPushButton::clicked, this, [this] { CommandTVAZGEC_Click(); });
}

void Transfer::CommandAL_Click() {
    if (form_.SBC->count() == 0) return;
    form_.Frame1->show();
    form_.YADSOY->clear();
    form_.YFADSOY->clear();
    form_.SBC->setCurrentIndex(0);
    form_.SBC->setFocus();
}

// A number that is left together with the panel is not looked up.
bool Transfer::panel_is_left() const {
    return !form_.Frame1->isAncestorOf(form_.focusWidget());
}

void Transfer::FONO_LostFocus() {
    const std::int64_t number = number_in(*form_.FONO);
    if (number <= 0 || panel_is_left()) return;
    SourceTerm source(session_.term_file(form_.SBC->currentText()));
    if (source.seek(number)) return form_.YFADSOY->setText(source.students()["ADSOY"].text());
    form_.YFADSOY->setText(u"Bu öğrenci bulunamadı."_s);
    form_.FONO->setFocus();
}

void Transfer::YONO_LostFocus() {
    const std::int64_t number = number_in(*form_.YONO);
    if (number <= 0 || panel_is_left()) return;
    if (!is_taken(number)) return form_.YADSOY->clear();
    form_.YADSOY->setText(u"Bu öğrenci numarası kayıtlı."_s);
    form_.YONO->setFocus();
}

bool Transfer::is_taken(std::int64_t number) {
    session_.studentTable.Seek("=", {number});
    const bool taken = !session_.studentTable.NoMatch();
    record_.seek_student();
    return taken;
}

void Transfer::CommandAKTAR_Click() {
    const std::int64_t number = number_in(*form_.YONO);
    if (number <= 0)
        clear_form();
    else if (!is_taken(number) && number_in(*form_.FONO) != 0)
        take_over(number_in(*form_.FONO));
    form_.Frame1->hide();
}

// The number stays: with the focus on it, leaving it decides anew whose record this is before anything can be saved.
void Transfer::clear_form() {
    record_.form_temizle();
    form_.ONO->setFocus();
}

void Transfer::take_over(std::int64_t number) {
    SourceTerm source(session_.term_file(form_.SBC->currentText()));
    if (!source.seek(number)) return;
    record_.form_temizle();
    form_.ADSOY->setFocus();
    form_.ONO->setText(QString::number(number_in(*form_.YONO)));
    show_source_row(source.students());
    record_.kayitVar = false;
}

// The class group stays behind unless the list has the code alone, so that the clerk chooses the new one.
void Transfer::show_source_row(store::Recordset& source) {
    for (const RecordField& field : record_fields())
        if (field.has(RecordField::moves)) record_controls::show(form_, field, source[field.field].value());
    form_.GELOKUL->setEditText(source["GELOKUL"].text());
    form_.OZKOD->setEditText(source["OZELKOD"].text());
    const int group = form_.SNF->findText(source["SINIF"].text(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (group >= 0) form_.SNF->setCurrentIndex(group);
    form_.AYYER->setText(u" "_s);
}

void Transfer::CommandTVAZGEC_Click() {
    form_.Frame1->hide();
}
