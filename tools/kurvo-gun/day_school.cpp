#include "day_school.h"

#include "csv.h"
#include "platform/text_file.h"
#include "school.h"
#include "store/conversion.h"
#include "store/record.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace day_school {
namespace {

QByteArray bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void fill(const File& file, const QString& folder) {
    store::Database database = store::OpenDatabase(file.path());
    for (const store::TableDef& table : store::catalogue(file.kind)) {
        store::Recordset rows = database.OpenRecordset(table.name);
        const QString name = file.name + u'.' + QString::fromStdString(table.name) + u".csv"_s;
        for (const Record& record : told(folder + u'/' + name, table)) {
            rows.AddNew();
            for (const store::FieldDef& field : table.fields)
                rows[field.name] = record[QString::fromStdString(field.name)];
            rows.Update();
        }
    }
}

}  // namespace

QString File::path() const {
    return school::data_file(root, name + u".mdb"_s);
}

const std::vector<File>& files() {
    static const std::vector<File> all{{u"Bilgi"_s, store::FileKind::reference},
                                       {u"2025ogr"_s, store::FileKind::term},
                                       {u"2026ogr"_s, store::FileKind::term}};
    return all;
}

QString nothing_in(const store::FieldDef& field) {
    return store::is_text(field.type) ? u" "_s : u"0"_s;
}

QList<Record> told(const QString& csv_file, const store::TableDef& table) {
    QList<Record> records;
    const std::vector<csv::Row> rows = csv::read(bytes(csv_file));
    for (std::size_t row = 1; row < rows.size(); ++row) {
        Record& record = records.emplaceBack();
        for (const store::FieldDef& field : table.fields)
            record[QString::fromStdString(field.name)] = nothing_in(field);
        for (std::size_t i = 0; i < rows[row].size(); ++i)
            record[rows[0].at(i).text.value()] = rows[row][i].text.value_or(u"Null"_s);
    }
    return records;
}

QStringList told_lines(const QString& text_file) {
    return QString::fromUtf8(bytes(text_file)).split(u'\n', Qt::SkipEmptyParts);
}

void make(const QString& folder) {
    school::create(root, {u"2025"_s, u"2026"_s});
    school::set_user(root, u"AYLA"_s, u"1011"_s);
    school::set_user(root, u"BORA"_s, u"0001"_s);
    for (const File& file : files()) fill(file, folder);
    for (const QString& name : QDir(folder).entryList({u"*.txt"_s}))
        text_file::write_lines(school::data_file(root, name), told_lines(folder + u'/' + name));
}

}  // namespace day_school
