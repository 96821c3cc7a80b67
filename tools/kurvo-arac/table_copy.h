// A table as comma-separated text and back: the same rows, to the last blank, quote, line end and decimal.
#pragma once

#include "store/record.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace table_copy {

// A list of the tables of a file with their fields, indexes and row counts, for the eye.
QString overview(const QString& file);

// Header of field names, then the rows in the order of `index` (empty: the primary order), handed to `write`
// in pieces of whole rows as UTF-8. Null is an empty field, an empty text "", a number stands with a point.
void dump(const QString& file, const QString& table, const QString& index,
          const std::function<void(const QByteArray&)>& write);

// Adds the rows of such a text; a field without a column becomes Null. With `empty_first` the rows that are
// there go. All or nothing: throws std::runtime_error that names line and field of what it refuses. Returns the
// number of rows added.
int load(const QString& file, const QString& table, const QByteArray& text, bool empty_first);

}  // namespace table_copy
