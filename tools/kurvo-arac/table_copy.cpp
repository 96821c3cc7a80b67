#include "table_copy.h"

#include "csv.h"
#include "store/conversion.h"
#include "store/relocation.h"
#include "store/snapshot.h"

#include <QTemporaryDir>

#include <charconv>
#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace table_copy {
namespace {

constexpr qsizetype piece = 64 * 1024;

[[noreturn]] void refuse(int line, const QString& field, const QString& words) {
    throw std::runtime_error(u"%1. satır, %2 alanı: %3"_s.arg(line).arg(field, words).toStdString());
}

std::optional<QString> as_text(const store::Value& value) {
    return value.is_null() ? std::nullopt : std::optional(value.text());
}

QString type_word(const store::FieldDef& field) {
    switch (field.type) {
        case store::FieldType::text:
            return field.size > 0 ? u"metin(%1)"_s.arg(field.size) : u"metin"_s;
        case store::FieldType::memo:
            return u"uzun metin"_s;
        case store::FieldType::integer:
            return u"tam sayı"_s;
        case store::FieldType::long_integer:
            return u"uzun tam sayı"_s;
        case store::FieldType::number:
            return u"sayı"_s;
    }
    return {};
}

template <typename Number>
std::optional<Number> parsed(const QString& text) {
    const QByteArray latin = text.toLatin1();
    Number number{};
    const auto end = std::from_chars(latin.data(), latin.data() + latin.size(), number);
    if (end.ec != std::errc() || end.ptr != latin.data() + latin.size()) return std::nullopt;
    return number;
}

store::Value value_of(const csv::Field& field, const store::FieldDef& definition) {
    if (!field.text) return {};
    if (store::is_text(definition.type)) return *field.text;
    const QString name = QString::fromStdString(definition.name);
    if (definition.type == store::FieldType::number) {
        const auto number = parsed<double>(*field.text);
        if (!number || !std::isfinite(*number)) refuse(field.line, name, u"sayı değil: \"%1\""_s.arg(*field.text));
        return *number;
    }
    const auto number = parsed<std::int64_t>(*field.text);
    if (!number) refuse(field.line, name, u"tam sayı değil: \"%1\""_s.arg(*field.text));
    const std::int64_t limit = definition.type == store::FieldType::integer ? 32767 : 2147483647;
    if (*number > limit || *number < -limit - 1) refuse(field.line, name, u"sığmaz: "_s + *field.text);
    return *number;
}

// The field of each column, in the order of the header.
std::vector<const store::FieldDef*> columns_of(const std::vector<csv::Row>& rows, const store::TableDef& table) {
    if (rows.empty()) throw std::runtime_error("1. satır: alan adları yok.");
    std::vector<const store::FieldDef*> columns;
    for (const csv::Field& header : rows.front()) {
        const QString name = header.text.value_or(QString());
        const auto same = [&](const store::FieldDef& field) { return name == QString::fromStdString(field.name); };
        const auto found = std::find_if(table.fields.begin(), table.fields.end(), same);
        if (found == table.fields.end()) refuse(header.line, name, u"tabloda böyle bir alan yok."_s);
        if (std::find(columns.begin(), columns.end(), &*found) != columns.end())
            refuse(header.line, name, u"iki kez yazılmış."_s);
        columns.push_back(&*found);
    }
    return columns;
}

void check_width(const csv::Row& row, const std::vector<const store::FieldDef*>& columns) {
    if (row.size() < columns.size())
        refuse(row.back().line, QString::fromStdString(columns[row.size()]->name), u"eksik."_s);
    if (row.size() > columns.size())
        throw std::runtime_error(u"%1. satır: %2 alan fazla, sonuncusu \"%3\"."_s.arg(row[columns.size()].line)
                                     .arg(row.size() - columns.size())
                                     .arg(row.back().text.value_or(QString()))
                                     .toStdString());
}

// The fields of the key that a row repeats, for the refusal of a duplicate.
QString key_fields(const store::TableDef& table) {
    QStringList names;
    for (const store::IndexDef& index : table.indexes)
        if (index.unique)
            for (const std::string& field : index.fields) names.append(QString::fromStdString(field));
    return names.join(u", "_s);
}

void add_row(store::Recordset& records, const csv::Row& row, const std::vector<const store::FieldDef*>& columns) {
    check_width(row, columns);
    records.AddNew();
    for (std::size_t i = 0; i < columns.size(); ++i) records[columns[i]->name] = value_of(row[i], *columns[i]);
    try {
        records.Update();
    } catch (const std::system_error& error) {
        if (error.code() != store::Errc::duplicate_key) throw;
        refuse(row.front().line, key_fields(records.definition()), u"bu anahtarla bir kayıt var."_s);
    }
}

// What is to be loaded: the header, then the rows.
struct Text {
    const std::vector<csv::Row>& rows;
    std::vector<const store::FieldDef*> columns;
};

void add_one_by_one(store::Database& database, const std::string& table, const Text& text, bool empty_first) {
    store::WriteScope scope(database);
    store::Recordset records = database.OpenRecordset(table);
    if (empty_first) store::scan_all(records, [&] { records.Delete(); });
    for (auto row = text.rows.begin() + 1; row != text.rows.end(); ++row) add_row(records, *row, text.columns);
    scope.commit();
}

// A server would be asked for each row. They are gathered in a scratch file, which refuses what the table would refuse,
// and go over together. False, and nothing added, where the table holds a key of theirs: who adds them one by one meets
// it.
bool add_at_once(const QString& file, const store::TableDef& table, const Text& text, bool empty_first) {
    const QTemporaryDir folder;
    const QString scratch = folder.filePath(u"yukle.mdb"_s);
    store::Database gathered = store::CreateDatabase(scratch);
    gathered.CreateTable(table);
    add_one_by_one(gathered, table.name, text, false);
    try {
        store::add_rows(scratch, file, table.name, empty_first);
        return true;
    } catch (const std::system_error& error) {
        if (error.code() != store::Errc::duplicate_key) throw;
        return false;
    }
}

QString index_line(const store::IndexDef& index) {
    QStringList fields;
    for (const std::string& field : index.fields) fields.append(QString::fromStdString(field));
    return u"  dizin %1: %2%3\n"_s.arg(QString::fromStdString(index.name), fields.join(u", "_s),
                                       index.unique ? QString() : u" (yinelenebilir)"_s);
}

}  // namespace

QString overview(const QString& file) {
    store::Database database = store::OpenDatabase(file);
    QString text;
    for (const store::TableDef& table : database.tables()) {
        const store::Recordset records = database.OpenRecordset(table.name);
        text += u"%1: %2 kayıt\n"_s.arg(QString::fromStdString(table.name)).arg(records.RecordCount());
        for (const store::FieldDef& field : table.fields)
            text += u"  %1 %2\n"_s.arg(QString::fromStdString(field.name).leftJustified(10), type_word(field));
        for (const store::IndexDef& index : table.indexes) text += index_line(index);
    }
    return text;
}

void dump(const QString& file, const QString& table, const QString& index,
          const std::function<void(const QByteArray&)>& write) {
    store::Database database = store::OpenDatabase(file);
    store::Recordset records = database.OpenRecordset(table.toStdString());
    if (!index.isEmpty()) records.Index(index.toStdString());
    const std::vector<store::FieldDef>& fields = records.definition().fields;
    QStringList cells;
    for (const store::FieldDef& field : fields) cells.append(csv::written(QString::fromStdString(field.name)));
    QByteArray waiting = (cells.join(u',') + csv::line_end).toUtf8();
    store::scan_all(records, [&] {
        cells.clear();
        for (const store::FieldDef& field : fields) cells.append(csv::written(as_text(records[field.name].value())));
        waiting += (cells.join(u',') + csv::line_end).toUtf8();
        if (waiting.size() < piece) return;
        write(waiting);
        waiting.clear();
    });
    write(waiting);
}

int load(const QString& file, const QString& table, const QByteArray& text, bool empty_first) {
    store::Database database = store::OpenDatabase(file);
    const store::TableDef definition = database.OpenRecordset(table.toStdString()).definition();
    const std::vector<csv::Row> rows = csv::read(text);
    const Text loaded{rows, columns_of(rows, definition)};
    if (!store::server_place_of(file) || !add_at_once(file, definition, loaded, empty_first))
        add_one_by_one(database, definition.name, loaded, empty_first);
    return static_cast<int>(rows.size()) - 1;
}

}  // namespace table_copy
