// What lessons and teachers are called at this moment.
#pragma once

#include "store/record.h"

#include <QHash>

// Holds the reference database open for as long as it lives: make one for one run of a routine.
class ReferenceNames {
public:
    // Opens the reference database `file`; throws where it is missing.
    explicit ReferenceNames(const QString& file);

    // The name, or the bare code or number where the table has no such row.
    QString lesson(const store::Value& kod) { return name(lessons_, kod); }
    QString teacher(const store::Value& sicil) { return name(teachers_, sicil); }

private:
    // A code is sought once: over the office's network every seek takes a lock of its own.
    struct Table {
        store::Recordset records;
        std::string_view field;
        QHash<QString, QString> known = {};
    };
    static QString name(Table& table, const store::Value& key);

    store::Database reference_;
    Table lessons_, teachers_;
};
