#include "register/student_import.h"

#include "platform/clock.h"
#include "platform/file_choice.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "register/student_list.h"

#include <QLayout>
#include <QListWidget>
#include <QProgressBar>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

int column_in(const QLineEdit& box) {
    const double column = std::clamp<double>(numbers::val(box.text()), 0, workbook::most_columns);
    return static_cast<int>(std::lround(column));
}

// Every field of the row: 0 for a number, one blank for a text.
void fill_with_nothing(store::Recordset& row) {
    static const store::Value blank(u" "), zero(0);
    using Type = store::FieldType;
    for (const store::FieldDef& field : row.definition().fields)
        row[field.name] = field.type == Type::text || field.type == Type::memo ? blank : zero;
    for (const char* coded : {"BOLUM", "SAVBEL"}) row[coded] = 0;  // numbers that are kept as texts
}

// How far a file has been read. It draws itself: nothing else is handled until the import is done.
class Progress {
public:
    Progress(QProgressBar& bar, int rows) : bar_(bar), step_(std::max(1, rows / steps)) {
        bar_.setRange(0, std::max(1, rows));
        bar_.setValue(0);
        bar_.show();
        if (QLayout* layout = bar_.parentWidget()->layout()) layout->activate();
        bar_.parentWidget()->repaint();
    }
    ~Progress() { bar_.hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show_row(int row) {
        if (row % step_ != 0) return;
        bar_.setValue(row);
        bar_.repaint();
    }

private:
    static constexpr int steps = 20;
    QProgressBar& bar_;
    const int step_;
};

}  // namespace

StudentImport::StudentImport(Kurvo& kurvo, SessionContext& session, StudentList& list)
    : kurvo_(kurvo), session_(session), list_(list) {
    on(kurvo_.CommandDOSYADAN, &QPushButton::clicked, this, [this] { CommandDOSYADAN_Click(); });
    on(kurvo_.CommandONAME, &QPushButton::clicked, this, [this] { CommandONAME_Click(); });
    on(kurvo_.CommandAKTAR, &QPushButton::clicked, this, [this] { CommandAKTAR_Click(); });
}

void StudentImport::CommandDOSYADAN_Click() {
    kurvo_.ListA->clear();
    kurvo_.panel_goster(Kurvo::Panel::Dosyadan);
}

void StudentImport::CommandONAME_Click() {
    const QString chosen = file_choice::open({});
    if (!chosen.isEmpty()) kurvo_.ONAME->setText(chosen);
}

void StudentImport::CommandAKTAR_Click() {
    for (const std::size_t required : {std::size_t{ImportColumns::first_name}, std::size_t{ImportColumns::number}})
        if (numbers::val(kurvo_.bas[required]->text()) == 0) return;
    if (!paths::exists(kurvo_.ONAME->text())) return;
    const WaitCursor wait;
    if (kurvo_.ASayrac->text().isEmpty()) kurvo_.ASayrac->setText(u" "_s);
    if (const auto book = open_workbook()) run(*book);
    kurvo_.ListA->scrollToBottom();
}

// None where the file cannot be read; the list tells why.
std::optional<Workbook> StudentImport::open_workbook() {
    try {
        return Workbook::open(kurvo_.ONAME->text());
    } catch (const std::runtime_error& refusal) {
        tell(QString::fromUtf8(refusal.what()));
        return std::nullopt;
    }
}

ImportColumns StudentImport::columns() const {
    ImportColumns columns;
    for (std::size_t box = 0; box < columns.of_box.size(); ++box) columns.of_box[box] = column_in(*kurvo_.bas[box]);
    return columns;
}

// A failure on the way, as a file that another workstation holds, ends the import like the end of the rows does, with
// one line more.
void StudentImport::run(const Workbook& book) {
    read_ = 0;
    written_.clear();
    today_ = dates::key(clock_source::today());
    try {
        add_rows(book);
    } catch (const std::runtime_error& failure) {
        tell(QString::fromUtf8(failure.what()));
    }
    tell(u"Okunan kayıt sayısı : "_s + QString::number(read_));
    tell(u"Yazılan kayıt sayısı : "_s + QString::number(written_.size()));
    list_.listeyi_yenile();
}

void StudentImport::add_rows(const Workbook& book) {
    store::Recordset classes = session_.termDb.OpenRecordset("Sinif");
    classes.Index("SINIFX");
    ImportRows rows(book, columns());
    Progress progress(*kurvo_.import_progress, book.rows());
    store::WriteScope scope(session_.termDb);
    try {
        for (;;) {
            const ImportedStudent student = rows.read(++read_);
            if (student.number == 0) break;
            if (may_add(student)) {
                add_student(student);
                add_class(classes, student.class_group);
            }
            scope.pause_if_due();
            progress.show_row(read_);
        }
        scope.commit();
    } catch (const std::runtime_error&) {
        keep_what_was_written(scope);
        throw;
    }
}

// What was committed on the way stays in any case; what came behind it, unless the file takes nothing any more.
void StudentImport::keep_what_was_written(store::WriteScope& scope) {
    try {
        scope.commit();
    } catch (const std::runtime_error&) {  // told already: it is what the import failed on
    }
    std::erase_if(written_, [this](double number) {
        session_.studentTable.Seek("=", {number});
        return session_.studentTable.NoMatch();
    });
}

bool StudentImport::may_add(const ImportedStudent& student) {
    const QString row = QString::number(read_);
    if (student.first_name.isEmpty()) return tell(row + u". satırda ad soyad yok"_s), false;
    session_.studentTable.Seek("=", {student.number});
    if (!session_.studentTable.NoMatch()) return tell(row + u". satırda mükerrer numara"_s), false;
    return true;
}

void StudentImport::add_student(const ImportedStudent& student) {
    static const QString no_text = rich_text::from_plain({});
    store::Recordset& row = session_.studentTable;
    row.AddNew();
    fill_with_nothing(row);
    const std::pair<const char*, store::Value> values[] = {
        {"ONO", student.number},
        {"ADSOY", student.full_name(kurvo_.ASayrac->text())},
        {"SINIF", student.class_group},
        {"TEL", student.telephone},
        {"CINSIYET", student.sex},
        {"RESIM", no_text},
        {"ACK", student.note},
        {"KAYTAR", today_},
        {"GELOKUL", student.school},
        {"DIN", student.grade},
        {"VGSM", student.guardian_telephone},
        {"VMAIL", no_text},
        {"AYTAR", today_},
        {"DOGTAR", today_},
        {"VERTAR", today_},
        {"REFERANS", student.referrer},
        {"USER", session_.userCode.isEmpty() ? u" "_s : session_.userCode},
    };
    for (const auto& [field, value] : values) row[field] = value;
    row.Update();
    written_.push_back(student.number);
}

// An import defines its class groups as it goes.
void StudentImport::add_class(store::Recordset& classes, const QString& class_group) {
    if (class_group == u" ") return;
    classes.Seek("=", {class_group});
    if (!classes.NoMatch()) return;
    classes.AddNew();
    classes["SINIF"] = class_group;
    classes["ACK"] = u" ";
    classes["KAPASITE"] = 0;
    classes.Update();
}

void StudentImport::tell(const QString& line) {
    kurvo_.ListA->addItem(line);
}
