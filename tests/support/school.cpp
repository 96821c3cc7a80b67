#include "support/school.h"

#include "platform/paths.h"
#include "platform/rich_text.h"
#include "platform/text_file.h"

#include <algorithm>
#include <map>

using store::FieldType;
using store::FileKind;

namespace {

// The bytes of a new file of this kind, made once: making one waits for the disk.
const QByteArray& new_file(FileKind kind) {
    static std::map<FileKind, QByteArray> known;
    QByteArray& bytes = known[kind];
    if (bytes.isEmpty()) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("new.mdb"));
        store::create_file(path, store::catalogue(kind));
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the new file cannot be read");
        bytes = file.readAll();
    }
    return bytes;
}

bool has_table(FileKind kind, std::string_view name) {
    const auto& tables = store::catalogue(kind);
    return std::ranges::find(tables, name, &store::TableDef::name) != tables.end();
}

// What the record form leaves for a student of whom nothing is known.
store::Value empty_value(const store::FieldDef& field) {
    if (field.name == "RESIM" || field.name == "VMAIL") return rich_text::from_plain(QStringLiteral(" "));
    if (field.name == "BOLUM" || field.name == "SAVBEL") return "0";
    for (const std::string_view date : {"KAYTAR", "AYTAR", "DOGTAR", "VERTAR"})
        if (field.name == date) return "20000101";
    return field.type == FieldType::text || field.type == FieldType::memo ? store::Value(" ") : store::Value(0);
}

}  // namespace

School::School(QString term) : term_(std::move(term)) {
    QDir(drives.path({})).mkpath(QStringLiteral("c/okul/data"));
    QDir(drives.path({})).mkpath(QStringLiteral("c/okul/foto"));
    QDir(drives.path({})).mkpath(QStringLiteral("c/qlm"));
    make_file(term_file(), FileKind::term);
    make_file(reference_file(), FileKind::reference);
    make_file(file_of("SBtab"), FileKind::version);
    make_file(file_of("users"), FileKind::users);
    make_file(file_of("prg"), FileKind::programs);
    data_version(QStringLiteral("21.1"));
    user(QStringLiteral("AYLIN"), QStringLiteral("0001"));
}

void School::make_file(const QString& file, FileKind kind) const {
    QFile made(paths::native(file));
    if (!made.open(QIODevice::WriteOnly | QIODevice::NewOnly) || made.write(new_file(kind)) < 0)
        throw std::runtime_error("the file of the school cannot be made");
}

QString School::file_of(std::string_view table) const {
    if (has_table(FileKind::term, table)) return term_file();
    if (has_table(FileKind::reference, table)) return reference_file();
    if (has_table(FileKind::version, table)) return data_file(QStringLiteral("Dsys.mdb"));
    if (has_table(FileKind::users, table)) return data_file(QStringLiteral("kbase.mdb"));
    return QStringLiteral("c:\\qlm\\Psys.mdb");
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

std::int64_t School::count(std::string_view table) const {
    auto database = store::OpenDatabase(file_of(table));
    return database.OpenRecordset(table).RecordCount();
}

School::Student School::student(int number) {
    if (row("Ogrenci", {number}).isEmpty()) {
        Fields fields;
        for (const auto& field : store::table_of(FileKind::term, "Ogrenci").fields)
            fields.emplace_back(field.name, empty_value(field));
        fields.front().second = number;
        add("Ogrenci", fields);
    }
    return {*this, number};
}

School& School::school_class(const QString& sinif, const QString& ack) {
    add("Sinif", {{"SINIF", sinif}, {"ACK", ack}, {"KAPASITE", 0}});
    return *this;
}

School& School::lesson(const QString& kod, const QString& tanim) {
    add("Ders", {{"KOD", kod}, {"TANIM", tanim}});
    return *this;
}

School& School::teacher(int sicil, const QString& adsoy) {
    add("Ogretmen", {{"SICIL", sicil}, {"ADSOY", adsoy}});
    return *this;
}

School& School::price(const QString& tur, const QString& kod, double deger, const QString& tanim) {
    add("Fiyat", {{"TUR", tur}, {"KOD", kod}, {"DEGER", deger}, {"TANIM", tanim}});
    return *this;
}

School& School::stop(int sno, int drk, const QString& ack) {
    add("Servis", {{"SNO", sno}, {"DRK", drk}, {"ACK", ack}});
    return *this;
}

School& School::series(const QString& seri, double sno) {
    add("Belgeno", {{"SERI", seri}, {"SNO", sno}});
    return *this;
}

School& School::user(const QString& kod, const QString& options) {
    auto database = store::OpenDatabase(file_of("users"));
    auto users = database.OpenRecordset("users");
    users.Seek("=", {kod});
    users.NoMatch() ? users.AddNew() : users.Edit();
    users["KOD"] = kod;
    users["DKOD"] = rich_text::from_plain(options);
    users.Update();
    return *this;
}

School& School::running_program(const QString& kod) {
    add("prg", {{"KOD", kod}});
    return *this;
}

School& School::data_version(const QString& version) {
    auto database = store::OpenDatabase(file_of("SBtab"));
    auto programs = database.OpenRecordset("SBtab");
    programs.Seek("=", {"RMA"});
    if (!programs.NoMatch()) programs.Delete();
    if (version.isEmpty()) return *this;
    programs.AddNew();
    programs["KOD"] = "RMA";
    programs["SB1"] = rich_text::from_plain(version);
    programs.Update();
    return *this;
}

void School::hand_over(const HandOver& items) const {
    QStringList lines;
    for (const QString& item :
         {items.version, QString(), data_root(), items.school_name, QString(), term_, QString(), items.hide_archived,
          QString(), items.rights, items.user, QString(), items.photo_folder, items.remote_host, items.remote_database,
          items.remote_user, items.remote_password, items.remote_key})
        lines << text_file::quoted(item);
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

School::Student& School::Student::note(const QString& plain) {
    return set("NOT", rich_text::from_plain(plain));
}
School::Student& School::Student::photo(const QString& plain) {
    return set("RESIM", rich_text::from_plain(plain));
}

School::Student& School::Student::instalment(const QString& vade, double tutar, int odsek) {
    school_.add("Odeme", {{"ONO", number_},
                          {"VADE", vade},
                          {"TUTAR", tutar},
                          {"ODENEN", 0},
                          {"ACK", " "},
                          {"ODSEK", odsek},
                          {"CYER", " "}});
    return *this;
}

School::Student& School::Student::payment(const QString& vade, const QString& tarih, const QString& saat, double odenen,
                                          const QString& btip, const QString& bno) {
    const bool invoice = btip == QStringLiteral("F");
    school_.add("Tahsilat", {{"ONO", number_},
                             {"VADE", vade},
                             {"TARIH", tarih},
                             {"SAAT", saat},
                             {"ODENEN", odenen},
                             {"KSAAT", saat},
                             {"KASAFNO", " "},
                             {"BTIP", btip},
                             {"BNO", bno},
                             {"FTAR", invoice ? tarih : QStringLiteral(" ")},
                             {"FNO", invoice ? bno : QStringLiteral(" ")}});
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

School::Student& School::Student::absent(std::string_view table, const QString& tarih, const QString& dkod, int izinli,
                                         int izinsiz, int raporlu) {
    school_.add(table, {{"ONO", number_},
                        {"TARIH", tarih},
                        {"DKOD", dkod},
                        {"IZINLI", izinli},
                        {"IZINSIZ", izinsiz},
                        {"RAPORLU", raporlu}});
    return *this;
}

School::Student& School::Student::absence(const QString& tarih, const QString& dkod, int izinli, int izinsiz,
                                          int raporlu) {
    return absent("Devam", tarih, dkod, izinli, izinsiz, raporlu);
}

School::Student& School::Student::study_absence(const QString& tarih, const QString& dkod, int izinli, int izinsiz,
                                                int raporlu) {
    return absent("EtudDevam", tarih, dkod, izinli, izinsiz, raporlu);
}

School::Student& School::Student::excuse(const QString& tarih, const QString& ack) {
    school_.add("Dmazeret", {{"ONO", number_}, {"TARIH", tarih}, {"ACK", ack}});
    return *this;
}

School::Student& School::Student::study_excuse(const QString& tarih, const QString& ack) {
    school_.add("Emazeret", {{"ONO", number_}, {"TARIH", tarih}, {"ACK", ack}});
    return *this;
}

School::Student& School::Student::session(const QString& tarih, const QString& saat, const QString& bitsaat,
                                          const QString& kod, int sicil, const QString& girdi, const QString& konu) {
    school_.add("Etud", {{"ONO", number_},
                         {"TARIH", tarih},
                         {"SAAT", saat},
                         {"BITSAAT", bitsaat},
                         {"KOD", kod},
                         {"SICIL", sicil},
                         {"GIRDI", girdi},
                         {"KONU", konu}});
    return *this;
}
