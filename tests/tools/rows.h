// Short ways to the rows of a file, for tests that look at what was written.
#pragma once

#include "store/record.h"
#include "support/refusal.h"
#include "support/run_all.h"
#include "table_copy.h"

namespace rows {

inline const QString root = QStringLiteral("c:\\okul\\");
inline const QString term = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");
inline const QString reference = QStringLiteral("c:\\okul\\data\\Bilgi.mdb");

// One record as the values of its fields.
using Record = QHash<QString, store::Value>;

inline QList<Record> all(const QString& file, std::string_view table) {
    store::Database database = store::OpenDatabase(file);
    store::Recordset records = database.OpenRecordset(table);
    QList<Record> result;
    store::scan_all(records, [&] {
        result.emplaceBack();
        for (const store::FieldDef& field : records.definition().fields)
            result.last()[QString::fromStdString(field.name)] = records[field.name].value();
    });
    return result;
}

inline QByteArray dump(const QString& file, const QString& table) {
    QByteArray text;
    table_copy::dump(file, table, {}, [&](const QByteArray& piece) { text += piece; });
    return text;
}

}  // namespace rows
