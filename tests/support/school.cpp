#include "support/school.h"

#include "platform/paths.h"
#include "platform/text_file.h"
#include "support/test_engine.h"

#include <stdexcept>

using store::FieldType;
using store::FileKind;

School::School(QString term) : term_(std::move(term)) {
    QDir(drives.path({})).mkpath(QStringLiteral("c/okul/data"));
    QDir(drives.path({})).mkpath(QStringLiteral("c/okul/foto"));
    QDir(drives.path({})).mkpath(QStringLiteral("c/qlm"));
    for (const auto& [kind, file] : files()) make_file(file, kind);
    data_version(QStringLiteral("21.1"));
    user(QStringLiteral("AYLIN"), QStringLiteral("0001"));
}

// A new file is a copy of one made once: making one waits for the disk.
void School::make_file(const QString& file, FileKind kind) const {
    static const QTemporaryDir folder;
    const QString first = folder.filePath(QStringLiteral("%1.mdb").arg(static_cast<int>(kind)));
    if (!QFile::exists(first)) store::create_file(first, store::catalogue(kind));
    if (!QFile::copy(first, paths::native(file))) throw std::runtime_error("the file of the school cannot be made");
    test_engine::take_over(file);
}

std::vector<std::pair<FileKind, QString>> School::files() const {
    return {{FileKind::term, term_file()},
            {FileKind::reference, reference_file()},
            {FileKind::version, data_file(QStringLiteral("Dsys.mdb"))},
            {FileKind::users, data_file(QStringLiteral("kbase.mdb"))},
            {FileKind::programs, QStringLiteral("c:\\qlm\\Psys.mdb")}};
}

QString School::file_of(std::string_view table) const {
    for (const auto& [kind, file] : files())
        for (const store::TableDef& known : store::catalogue(kind))
            if (known.name == table) return file;
    throw std::invalid_argument("no file of the school has such a table");
}

void School::add_term(const QString& term) const {
    make_file(data_file(term + QStringLiteral("ogr.mdb")), FileKind::term);
}

void School::add(std::string_view table, const Fields& fields) const {
    auto database = store::OpenDatabase(file_of(table));
    auto records = database.OpenRecordset(table);
    records.AddNew();
    for (const auto& [name, value] : fields) records[name] = value;
    records.Update();
}

School::Texts School::row(std::string_view table, std::initializer_list<store::Value> key) const {
    auto database = store::OpenDatabase(file_of(table));
    auto records = database.OpenRecordset(table);
    records.Seek("=", key);
    Texts texts;
    if (records.NoMatch()) return texts;
    for (const auto& field : records.definition().fields)
        texts[QString::fromStdString(field.name)] = records[field.name].text();
    return texts;
}

QStringList School::rows(std::string_view table, std::initializer_list<std::string_view> fields) const {
    auto database = store::OpenDatabase(file_of(table));
    auto records = database.OpenRecordset(table);
    QStringList all;
    store::scan_all(records, [&] {
        QStringList texts;
        for (const auto field : fields) texts << records[field].text();
        all << texts.join(u'|');
    });
    return all;
}

School::Student School::student(int number) {
    if (row("Ogrenci", {number}).isEmpty()) {
        const auto is_text = [](const store::FieldDef& field) {
            return field.type == FieldType::text || field.type == FieldType::memo;
        };
        Fields fields;
        for (const auto& field : store::table_of(FileKind::term, "Ogrenci").fields)
            fields.emplace_back(field.name, is_text(field) ? store::Value(" ") : store::Value(0));
        fields.front().second = number;
        add("Ogrenci", fields);
    }
    return {*this, number};
}

School& School::with(std::string_view table, const Fields& fields) {
    add(table, fields);
    return *this;
}

School& School::coded(std::string_view table, const QString& kod, std::string_view field, const QString& plain) {
    auto database = store::OpenDatabase(file_of(table));
    auto records = database.OpenRecordset(table);
    records.Seek("=", {kod});
    records.NoMatch() ? records.AddNew() : records.Edit();
    records["KOD"] = kod;
    records[field] = rich_text::from_plain(plain);
    records.Update();
    return *this;
}

School& School::data_version(const QString& version) {
    if (!version.isEmpty()) return coded("SBtab", QStringLiteral("RMA"), "SB1", version);
    auto database = store::OpenDatabase(file_of("SBtab"));
    auto programs = database.OpenRecordset("SBtab");
    programs.Seek("=", {"RMA"});
    programs.Delete();
    return *this;
}

void School::hand_over(const HandOver& items) const {
    QStringList lines{items.version, {},      data_root(), "ÖZEL IŞIK",       {}, term_, {}, "0", {},
                      items.rights,  "AYLIN", {},          "c:\\okul\\foto\\"};
    lines << QStringList(4) << items.remote_key;
    for (QString& line : lines) line = text_file::quoted(line);
    text_file::write_lines(QStringLiteral("c:\\qlm\\log.txt"), lines);
}

School::Student& School::Student::set(std::string_view field, const store::Value& value) {
    auto database = store::OpenDatabase(school_.term_file());
    auto students = database.OpenRecordset("Ogrenci");
    students.Seek("=", {number_});
    students.Edit();
    students[field] = value;
    students.Update();
    return *this;
}

School::Student& School::Student::with(std::string_view table, Fields fields) {
    fields.emplace_back("ONO", number_);
    school_.add(table, fields);
    return *this;
}

School::Student& School::Student::payment(const QString& vade, const QString& tarih, const QString& saat,
                                          double odenen) {
    Fields fields{{"VADE", vade}, {"TARIH", tarih}, {"SAAT", saat}, {"ODENEN", odenen}, {"KSAAT", saat}};
    for (const char* blank : {"KASAFNO", "BTIP", "BNO", "FTAR", "FNO"}) fields.emplace_back(blank, " ");
    with("Tahsilat", fields);
    const QString who = QString::number(number_) + QStringLiteral("  ") +
                        school_.row("Ogrenci", {number_}).value(QStringLiteral("ADSOY")) + QStringLiteral(" #") +
                        school_.term();
    school_.add(
        "Kasa",
        {{"TARIH", tarih}, {"SAAT", saat}, {"ACK", who}, {"TUTAR", odenen}, {"AE", "+"}, {"KOD", "1"}, {"TIP", "TL"}});
    auto database = store::OpenDatabase(school_.term_file());
    auto instalments = database.OpenRecordset("Odeme");
    instalments.Seek("=", {number_, vade});
    instalments.Edit();
    instalments["ODENEN"] = instalments["ODENEN"].number() + odenen;
    instalments.Update();
    return *this;
}
