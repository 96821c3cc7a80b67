#include "store/sqlite_statement.h"

#include <string>
#include <utility>

namespace store {

SqliteStatement::SqliteStatement(sqlite3* connection, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v3(connection, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                        &statement, nullptr);
    statement_.reset(statement);
    if (code != SQLITE_OK) throw SqliteFailure{sqlite3_extended_errcode(connection)};
}

void SqliteStatement::check(int code) const {
    if (code != SQLITE_OK) throw SqliteFailure{code};
}

void SqliteStatement::bind(int place, std::int64_t number) {
    check(sqlite3_bind_int64(statement_.get(), place, number));
}

void SqliteStatement::bind(int place, std::string_view utf8) {
    check(sqlite3_bind_text64(statement_.get(), place, utf8.data(), utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void SqliteStatement::bind(int place, const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value.raw())) {
        bind(place, *whole);
    } else if (const auto* number = std::get_if<double>(&value.raw())) {
        check(sqlite3_bind_double(statement_.get(), place, *number));
    } else if (const auto* text = std::get_if<QString>(&value.raw())) {
        bind_text(place, *text);
    } else {
        check(sqlite3_bind_null(statement_.get(), place));
    }
}

// Kept here, since a copy by SQLite would cost memory of its own for each text of a long row.
void SqliteStatement::bind_text(int place, const QString& text) {
    QByteArray utf8 = text.toUtf8();
    const auto index = static_cast<std::size_t>(place);
    if (index >= texts_.size()) texts_.resize(index + 1);
    check(sqlite3_bind_text64(statement_.get(), place, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                              SQLITE_STATIC, SQLITE_UTF8));
    texts_[index] = std::move(utf8);
}

bool SqliteStatement::step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    const int extended = sqlite3_extended_errcode(sqlite3_db_handle(statement_.get()));
    reset();
    if (code != SQLITE_DONE) throw SqliteFailure{extended};
    return false;
}

void SqliteStatement::run() {
    while (step()) {
    }
}

// The value is asked for once and then looked at, which only a connection of one thread may do.
void SqliteStatement::append(int column, Batch& batch) const {
    sqlite3_value* const value = sqlite3_column_value(statement_.get(), column);
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return batch.add(std::int64_t{sqlite3_value_int64(value)});
        case SQLITE_FLOAT:
            return batch.add(sqlite3_value_double(value));
        case SQLITE_NULL:
            return batch.add_null();
        default: {
            const auto* utf8 = reinterpret_cast<const char*>(sqlite3_value_text(value));
            batch.add(std::string_view(utf8, static_cast<std::size_t>(sqlite3_value_bytes(value))));
        }
    }
}

std::string SqliteStatement::text(int column) const {
    const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return utf8 ? std::string(utf8, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))) : "";
}

std::string quoted_name(std::string_view name) {
    std::string quoted = "\"";
    for (const char letter : name) {
        if (letter == '"') quoted += '"';
        quoted += letter;
    }
    return quoted += '"';
}

}  // namespace store
