// The school of the day: small, made by hand, told in CSV files of the names FILE.TABLE.csv.
#pragma once

#include "store/catalogue.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

namespace day_school {

inline const QString root = QStringLiteral("p:\\okul\\");

struct File {
    QString name;  // "2026ogr"
    store::FileKind kind;
    QString path() const;
};
// What the school keeps in tables: two terms, and what they share.
const std::vector<File>& files();

// One row, field -> text.
using Record = QMap<QString, QString>;
// What a field without a value holds: one blank, or 0.
QString nothing_in(const store::FieldDef& field);
// The rows of a CSV file; a field without a column holds nothing, an empty place is "Null". None where no file lies.
QList<Record> told(const QString& csv_file, const store::TableDef& table);
QStringList told_lines(const QString& text_file);

// Makes the files under the root with the users of both desks, and fills them and the parameter files from `folder`.
void make(const QString& folder);

}  // namespace day_school
