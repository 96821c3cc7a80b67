#include "register/renumbering.h"

#include "platform/numbers.h"
#include "platform/prompt.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "register/student_tables.h"

#include <algorithm>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The payments last: the cash book is repaired behind them.
constexpr StudentTable tables_in_order[] = {
    student_tables::Odeme,     student_tables::Devam,    student_tables::Dmazeret, student_tables::Etud,
    student_tables::EtudDevam, student_tables::Emazeret, student_tables::Tahsilat};

// The number that a text holds and nothing else; 0 where it is no student number.
std::int64_t student_number(const QString& text) {
    constexpr qsizetype most_digits = 15;  // what a number field keeps exactly
    const QString digits = text.trimmed();
    const bool valid = digits.size() <= most_digits &&
                       std::ranges::all_of(digits, [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
    return valid ? digits.toLongLong() : 0;
}

// What stands behind the number in the key of a row.
using Key = std::vector<store::Value>;

std::vector<std::string> further_fields(const store::Recordset& rows, const StudentTable& table) {
    const auto& indexes = rows.definition().indexes;
    const auto index = std::ranges::find(indexes, std::string_view(table.index), &store::IndexDef::name);
    return {index->fields.begin() + 1, index->fields.end()};
}

std::vector<Key> further_keys(store::Recordset& rows, const std::vector<std::string>& fields, std::int64_t student) {
    std::vector<Key> keys;
    store::scan_prefix(rows, {student}, [&] {
        Key& key = keys.emplace_back();
        for (const std::string& field : fields) key.push_back(rows[field].value());
    });
    return keys;
}

bool seek_row(store::Recordset& rows, std::int64_t student, const Key& further) {
    switch (further.size()) {
        case 1:
            rows.Seek("=", {student, further[0]});
            break;
        case 2:
            rows.Seek("=", {student, further[0], further[1]});
            break;
        default:
            rows.Seek("=", {student, further.at(0), further.at(1), further.at(2)});
    }
    return !rows.NoMatch();
}

bool has_rows_of(store::Recordset& rows, std::int64_t student) {
    bool found = false;
    store::scan_prefix(rows, {student}, [&] {
        found = true;
        return false;
    });
    return found;
}

// Gives the rows of a student another number. A changed row leaves its place in the order, so its key is noted first;
// what another workstation adds meanwhile comes over in the next turn.
void move_rows(store::Database& term, const StudentTable& table, std::int64_t from, std::int64_t to) {
    store::Recordset rows = table.open(term);
    const std::vector<std::string> fields = further_fields(rows, table);
    std::vector<Key> keys = further_keys(rows, fields, from);
    if (keys.empty()) return;
    store::WriteScope scope(term);
    for (; !keys.empty(); keys = further_keys(rows, fields, from)) {
        for (const Key& key : keys) {
            if (!seek_row(rows, from, key)) continue;
            rows.Edit();
            rows["ONO"] = to;
            rows.Update();
            scope.pause_if_due();
        }
    }
    scope.commit();
}

// The text with the new number in place of the old one that it begins with; null where it does not.
QString with_number(const QString& text, std::int64_t from, std::int64_t to) {
    const qsizetype blank = text.indexOf(u' ');
    if (blank < 0 || numbers::val(text.left(blank)) != static_cast<double>(from)) return {};
    return QString::number(to) + text.mid(blank);
}

}  // namespace

Renumbering::Renumbering(KurvoYeni& form, SessionContext& session, MainScreen main)
    : form_(form), session_(session), main_(main) {
    on(form_.CommandNODGS, &QPushButton::clicked, this, [this] { CommandNODGS_Click(); });
    on(form_.CommandNOVAZGEC, &QPushButton::clicked, this, [this] { CommandNOVAZGEC_Click(); });
    on(form_.CommandNODEGISTIR, &QPushButton::clicked, this, [this] { CommandNODEGISTIR_Click(); });
}

// Only what was enabled is enabled again behind the panel: who may not delete may not do so afterwards either.
void Renumbering::CommandNODGS_Click() {
    form_.FrameNODGS->show();
    disabled_.clear();
    for (QWidget* button : {form_.CommandNODGS, form_.CommandAL, form_.CommandTEMIZLE, form_.CommandKAYDET,
                            form_.CommandSIL, form_.CommandSOZLESME, form_.CommandYAZ}) {
        if (button->isEnabled()) disabled_.push_back(button);
        button->setEnabled(false);
    }
    form_.YENINO->setFocus();
    form_.YENINO->selectAll();
}

void Renumbering::close_panel() {
    form_.FrameNODGS->hide();
    for (QWidget* button : std::exchange(disabled_, {})) button->setEnabled(true);
}

void Renumbering::CommandNOVAZGEC_Click() {
    close_panel();
    form_.ADSOY->setFocus();
}

void Renumbering::CommandNODEGISTIR_Click() {
    const std::int64_t from = store::Value(form_.ONO->text()).whole_number();
    const std::int64_t to = student_number(form_.YENINO->text());
    if (to == 0) return refuse(u"Geçerli bir numara giriniz."_s);
    if (!is_free(to, from)) return refuse(u"Bu numarada bir öğrenci kayıtlı."_s);
    const WaitCursor wait;
    renumber(from, to);
    close_panel();
    main_.list.listeyi_yenile();
    show_renumbered(from, to);
}

// Looks the number up and leaves studentTable on the student of the form.
bool Renumbering::is_free(std::int64_t number, std::int64_t current) {
    store::Recordset& students = session_.studentTable;
    students.Seek("=", {number});
    const bool free = students.NoMatch();
    students.Seek("=", {current});
    return free;
}

void Renumbering::refuse(const QString& words) {
    prompt::tell(words, u"Dikkat"_s);
    form_.YENINO->setFocus();
}

// Another workstation may have deleted the student: then nothing is written. The cash book comes before the student's
// row, so that it too is repaired when a renumbering that was cut is started again.
void Renumbering::renumber(std::int64_t from, std::int64_t to) {
    session_.studentTable["ONO"].required();
    for (const StudentTable& table : tables_in_order) move_rows(session_.termDb, table, from, to);
    repair_cash_book(from, to);
    store::Recordset& students = session_.studentTable;
    students.Seek("=", {from});
    students.Edit();
    students["ONO"] = to;
    students.Update();
}

// A cash row names the student's number in front of its text. Only collections that came over to the new number lead
// there, in this run or in an earlier one that was cut; without any the reference database stays closed.
void Renumbering::repair_cash_book(std::int64_t from, std::int64_t to) {
    store::Recordset tahsilat = student_tables::Tahsilat.open(session_.termDb);
    if (!has_rows_of(tahsilat, to)) return;
    store::Database reference = store::OpenDatabase(session_.reference_file());
    store::WriteScope scope(reference);
    store::Recordset kasa = reference.OpenRecordset("Kasa");
    kasa.Index("TSX");
    store::scan_prefix(tahsilat, {to}, [&] {
        kasa.Seek("=", {tahsilat["TARIH"].value(), tahsilat["KSAAT"].value()});
        if (kasa.NoMatch() || kasa["KOD"].text() != u"1") return;
        const QString ack = with_number(kasa["ACK"].text(), from, to);
        if (ack.isNull()) return;
        kasa.Edit();
        kasa["ACK"] = ack;
        kasa.Update();
        scope.pause_if_due();
    });
    scope.commit();
}

// The student stays on the form, and on the card if it was there.
void Renumbering::show_renumbered(std::int64_t from, std::int64_t to) {
    const QString number = QString::number(to);
    form_.ONO->setText(number);
    if (session_.shownStudent == from) main_.show_student(number);
    session_.studentTable.Seek("=", {to});
}
