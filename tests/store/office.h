// One term file in a folder of drives of the test's own, and short words for its rows.
#pragma once

#include "store/record.h"
#include "support/drives.h"
#include "support/refusal.h"
#include "support/test_engine.h"

#include <QTest>

struct Office {
    Office() {
        QDir(drives.path("")).mkpath("c/okul");
        store::create_file(file, store::catalogue(store::FileKind::term));
        test_engine::take_over(file);
    }

    Drives drives;
    QString file = QStringLiteral("c:\\okul\\2026ogr.mdb");
};

// An office whose file is open with one of its tables.
struct Desk : Office {
    explicit Desk(std::string_view table = "Odeme") : rows(database.OpenRecordset(table)) {}

    store::Database database = store::OpenDatabase(file);
    store::Recordset rows;
};

using Fields = std::initializer_list<std::pair<std::string_view, store::Value>>;

inline void add(store::Recordset& records, Fields fields) {
    records.AddNew();
    for (const auto& [name, value] : fields) records[name] = value;
    records.Update();
}

inline void add_instalment(store::Recordset& odeme, int ono, const store::Value& vade, int tutar) {
    add(odeme, {{"ONO", ono}, {"VADE", vade}, {"TUTAR", tutar}});
}

inline void set(store::Recordset& records, std::string_view field, const store::Value& value) {
    records.Edit();
    records[field] = value;
    records.Update();
}

// A field of all rows in the order of the current index.
inline QStringList walk(store::Recordset& records, std::string_view field) {
    QStringList texts;
    store::scan_all(records, [&] { texts << records[field].text(); });
    return texts;
}

// The code of a failing action; no error where it does not fail.
template <typename Action>
std::error_code code_of(Action action) {
    try {
        action();
    } catch (const std::system_error& failure) {
        return failure.code();
    }
    return {};
}
