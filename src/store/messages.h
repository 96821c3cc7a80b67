// The words of the store's failures: Turkish, naming the file as the office writes it, the table and the field.
#pragma once

#include "store/catalogue.h"
#include "store/record.h"

#include <QString>

#include <stdexcept>
#include <string_view>
#include <system_error>

namespace messages {

inline QString name(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::runtime_error error(const QString& text) {
    return std::runtime_error(text.toStdString());
}

// "TEXT: FILE" or "TEXT: FILE, tablo TABLE".
inline QString about(QStringView text, const QString& file, std::string_view table = {}) {
    QString message = text.toString() + QStringLiteral(": ") + file;
    if (!table.empty()) message += QStringLiteral(", tablo ") + name(table);
    return message;
}
inline std::runtime_error error(QStringView text, const QString& file, std::string_view table = {}) {
    return error(about(text, file, table));
}

// `pattern` holds %1 the field, %2 the table, %3 the value.
inline std::runtime_error field_error(QStringView pattern, const store::TableDef& table, const store::FieldDef& field,
                                      const QString& value = {}) {
    return error(pattern.toString().arg(name(field.name), name(table.name), value));
}

// An outcome that callers tell apart; reads "FILE, tablo TABLE: what happened".
inline std::system_error outcome(store::Errc code, const QString& file, std::string_view table = {}) {
    QString place = file;
    if (!table.empty()) place += QStringLiteral(", tablo ") + name(table);
    return {store::make_error_code(code), place.toStdString()};
}

}  // namespace messages
