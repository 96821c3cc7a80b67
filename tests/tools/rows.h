// Short ways to the rows of a file, for tests that look at what was written.
#pragma once

#include "store/record.h"
#include "table_copy.h"

#include <QList>

namespace rows {

inline const QString term = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");
inline const QString reference = QStringLiteral("c:\\okul\\data\\Bilgi.mdb");

// One record as the values of its fields.
using Record = QHash<QString, store::Value>;

inline QList<Record> all(const QString& file, const char* table) {
    store::Database database = store::OpenDatabase(file);
    store::Recordset records = database.OpenRecordset(table);
    QList<Record> result;
    store::scan_all(records, [&] {
        Record record;
        for (const store::FieldDef& field : records.definition().fields)
            record.insert(QString::fromStdString(field.name), records[field.name].value());
        result.append(record);
    });
    return result;
}

inline QByteArray dump(const QString& file, const QString& table, const QString& index = {}) {
    QByteArray text;
    table_copy::dump(file, table, index, [&](const QByteArray& piece) { text += piece; });
    return text;
}

// The words of what `act` throws; empty where it throws nothing.
template <typename Act>
QString refusal(Act act) {
    try {
        act();
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

}  // namespace rows
