// The record form: a student opened and saved unchanged, and a student renumbered.
#include "bare_form.h"
#include "benches.h"
#include "forms/record_fields.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "platform/prompt.h"
#include "raw_store.h"
#include "register/renumbering.h"
#include "rich_student.h"
#include "running_program.h"

#include <QCoreApplication>

#include <map>
#include <memory>
#include <stdexcept>

namespace bench {

namespace {

constexpr RowCounts rows{12, 20, 200, 50};

// The lists' entries, by the name of the list.
using Entries = std::map<QString, QStringList>;

Entries entries_of(const KurvoYeni& form) {
    Entries all;
    for (const QComboBox* list : form.findChildren<QComboBox*>())
        for (int i = 0; i < list->count(); ++i) all[list->objectName()].append(list->itemText(i));
    return all;
}

std::string columns(const char* behind) {
    std::string names;
    for (const RecordField& field : record_fields())
        names += (names.empty() ? "" : ", ") + ("\"" + std::string(field.field) + "\"") + behind;
    return names;
}

// The same form with the same texts, and the same rows read and written, by nobody's rules.
class BareRecord {
public:
    explicit BareRecord(Entries entries) : entries_(std::move(entries)) {}

    void open(double student);
    void save(double student);
    void close() { form_.reset(); }
    void refill(GridView& list);

private:
    void set(const RecordField& field, const QString& text);
    void show_plan(double student);

    Entries entries_;
    std::unique_ptr<KurvoYeni> form_;
    std::vector<std::string> texts_;
    RawFile term_{BigSchool::term_file};
    RawStatement row_ = term_.prepare(("SELECT " + columns("") + " FROM Ogrenci WHERE ONO=?").c_str());
    RawStatement plan_ = term_.prepare(
        "SELECT VADE, TUTAR, ODSEK, ACK, ODENEN FROM Odeme INDEXED BY \"Odeme.OVX\" WHERE ONO=? ORDER BY VADE");
    RawStatement write_ = term_.prepare(
        ("UPDATE Ogrenci SET " + columns("=?") + " WHERE ONO=?" + std::to_string(record_fields().size() + 1)).c_str());
    RawStatement list_ =
        term_.prepare("SELECT SINIF, ONO, ADSOY FROM Ogrenci INDEXED BY \"Ogrenci.ONOX\" ORDER BY ONO");
};

void BareRecord::open(double student) {
    form_ = std::make_unique<KurvoYeni>();
    for (QComboBox* list : form_->findChildren<QComboBox*>()) list->addItems(entries_[list->objectName()]);
    form_->show();
    texts_.clear();
    row_.bind(1, student).step();
    for (std::size_t i = 0; i < record_fields().size(); ++i) {
        texts_.push_back(row_.text(static_cast<int>(i)));
        set(record_fields()[i], QString::fromStdString(texts_.back()));
    }
    row_.reset();
    show_plan(student);
}

void BareRecord::set(const RecordField& field, const QString& text) {
    if (auto* box = control_as<QLineEdit>(field, *form_)) box->setText(text);
    if (auto* list = control_as<QComboBox>(field, *form_)) list->setCurrentIndex(text.toInt());
    if (auto* date = control_as<DatePicker>(field, *form_)) date->set_key(text);
    if (auto* check = control_as<QCheckBox>(field, *form_)) check->setChecked(text == u"1");
    if (field.has(RecordField::watched)) control_of(field, *form_)->setToolTip(text);
}

void BareRecord::show_plan(double student) {
    GridView& grid = *form_->TABLO2;
    const GridView::Filling filling(grid);
    plan_.bind(1, student);
    for (int row = 0; plan_.step(); ++row) {
        grid.set_rows(row + 1);
        for (int column = 0; column < 5; ++column)
            grid.set_text(row, column + 1, QString::fromStdString(plan_.text(column)));
    }
    plan_.reset();
}

void BareRecord::save(double student) {
    for (std::size_t i = 0; i < texts_.size(); ++i) write_.bind(static_cast<int>(i) + 1, texts_[i]);
    write_.bind(static_cast<int>(texts_.size()) + 1, student);
    term_.run("BEGIN IMMEDIATE");
    write_.run();
    term_.run("COMMIT");
    for (const RecordField& field : record_fields()) set(field, {});
}

void BareRecord::refill(GridView& list) {
    const GridView::Filling filling(list);
    for (int row = 0; list_.step(); ++row) {
        if (row == list.rows()) list.set_rows(row + BigSchool::usual_students);
        for (int column = 0; column < 3; ++column)
            list.set_text(row, column, QString::fromStdString(list_.text(column)));
    }
    list_.reset();
}

// All tables of a student in turn, each in one statement and one commit.
class BareRenumbering {
public:
    void renumber(double from, double to);

private:
    RawFile term_{BigSchool::term_file};
    RawFile reference_{BigSchool::reference_file};
    std::vector<RawStatement> tables_ = [this] {
        std::vector<RawStatement> statements;
        for (const char* table : {"Odeme", "Devam", "Dmazeret", "Etud", "EtudDevam", "Emazeret", "Tahsilat", "Ogrenci"})
            statements.push_back(term_.prepare((std::string("UPDATE ") + table + " SET ONO=? WHERE ONO=?").c_str()));
        return statements;
    }();
    RawStatement payments_ = term_.prepare("SELECT TARIH, KSAAT FROM Tahsilat WHERE ONO=?");
    RawStatement cash_ =
        reference_.prepare("UPDATE Kasa SET ACK=?||substr(ACK,instr(ACK,' ')) WHERE TARIH=? AND SAAT=? AND KOD='1'");
};

void BareRenumbering::renumber(double from, double to) {
    for (RawStatement& table : tables_) {
        term_.run("BEGIN IMMEDIATE");
        table.bind(1, to).bind(2, from).run();
        term_.run("COMMIT");
    }
    reference_.run("BEGIN IMMEDIATE");
    payments_.bind(1, to);
    while (payments_.step())
        cash_.bind(1, std::to_string(static_cast<long>(to)))
            .bind(2, payments_.text(0))
            .bind(3, payments_.text(1))
            .run();
    payments_.reset();
    reference_.run("COMMIT");
}

// The panel of the record form with an empty list behind it: list and card are measured by themselves.
class RenumberingPanel {
public:
    explicit RenumberingPanel();
    void renumber(double from, double to);

private:
    SessionContext session_, behind_;
    store::Database nobody_;
    Kurvo kurvo_;
    StudentCard card_{kurvo_, behind_, {}};
    StudentList list_{kurvo_, behind_, card_};
    KurvoYeni form_;
    Renumbering renumbering_{form_, session_, {kurvo_, list_, card_}};
};

RenumberingPanel::RenumberingPanel() {
    const QString empty_term = QStringLiteral("c:\\okul\\data\\bosogr.mdb");
    store::create_file(empty_term, store::catalogue(store::FileKind::term));
    behind_.termDb = store::OpenDatabase(empty_term);
    behind_.studentTable = behind_.termDb.OpenRecordset("Ogrenci");
    session_.dataRoot = BigSchool::root;
    session_.termDb = store::OpenDatabase(BigSchool::term_file);
    session_.studentTable = session_.termDb.OpenRecordset("Ogrenci");
}

void RenumberingPanel::renumber(double from, double to) {
    session_.studentTable.Seek("=", {from});
    form_.ONO->setText(QString::number(from, 'f', 0));
    form_.YENINO->setText(QString::number(to, 'f', 0));
    form_.CommandNODEGISTIR->click();
}

void require_no_prompt(const prompt::Script& script) {
    if (!script.failures().isEmpty()) throw std::runtime_error(script.failures().join(u' ').toStdString());
}

}  // namespace

void measure_record_form(Table& table, const BigSchool& school) {
    const std::string act = "record form opened and saved unchanged";
    if (!table.wants(act)) return;
    const double student = school.numbers()[1], other = school.numbers()[4];
    RunningProgram program(school);
    const prompt::Script script;
    Kurvo& main = program->form();
    main.LONO->setText(QString::number(student, 'f', 0));
    main.CommandYENI->click();
    BareRecord bare(entries_of(*program->record_form()));
    BareForm bare_main;
    bare_main.TABLO->set_columns(3);
    program->record_form()->close();

    const auto open_and_save = [&] {
        main.LONO->setText(QString::number(student, 'f', 0));
        const Seconds taken = timed([&] {
            main.CommandYENI->click();
            QCoreApplication::processEvents();
            program->record_form()->CommandKAYDET->click();
        });
        program->record_form()->close();
        QCoreApplication::processEvents();
        return taken;
    };
    const auto set_and_write = [&] {
        const Seconds taken = timed([&] {
            bare.open(other);
            QCoreApplication::processEvents();
            bare.save(other);
            bare.refill(*bare_main.TABLO);
        });
        bare.close();
        QCoreApplication::processEvents();
        return taken;
    };
    table.compare(act, 2, open_and_save, set_and_write);
    require_no_prompt(script);
}

void measure_renumbering(Table& table, const BigSchool& school) {
    const std::string act = "renumbering a student with 282 rows";
    if (!table.wants(act)) return;
    constexpr double moved_by = 1'000'000;
    const double student = school.numbers()[2], other = school.numbers()[3];
    for (const double each : {student, other}) give_rows(each, rows);
    RenumberingPanel panel;
    BareRenumbering bare;
    const prompt::Script script;

    // There and back, so that every run finds the same.
    const auto there_and_back = [](double number, auto renumber) {
        return timed(
            [&] {
                renumber(number, number + moved_by);
                renumber(number + moved_by, number);
            },
            2);
    };
    table.compare(
        act, 2, [&] { return there_and_back(student, [&](double from, double to) { panel.renumber(from, to); }); },
        [&] { return there_and_back(other, [&](double from, double to) { bare.renumber(from, to); }); });
    require_no_prompt(script);
}

}  // namespace bench
