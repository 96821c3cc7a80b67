// A connection and a prepared statement of SQLite, owned.
#pragma once

#include "store/batch.h"

#include <QByteArray>

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace store {

struct SqliteClose {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using SqliteConnection = std::unique_ptr<sqlite3, SqliteClose>;

// Prepared once, run many times. A failure throws SqliteFailure, which never leaves the engine.
struct SqliteFailure {
    int code;  // extended
};

class SqliteStatement {
public:
    SqliteStatement(sqlite3* connection, std::string_view sql);

    // `place` counts from 1.
    void bind(int place, const Value& value);
    void bind(int place, std::int64_t number);
    void bind(int place, std::string_view utf8);
    // Whether there is a (further) row. At the end and on failure the statement is reset and holds no lock.
    bool step();
    void reset() { sqlite3_reset(statement_.get()); }
    // Steps to the end; for statements whose rows nobody reads.
    void run();

    // Adds the column's value to the row.
    void append(int column, Batch& batch) const;
    std::int64_t whole(int column) const { return sqlite3_column_int64(statement_.get(), column); }
    std::string text(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    void check(int code) const;
    void bind_text(int place, const QString& text);

    std::vector<QByteArray> texts_;  // bound ones by place, where SQLite reads them
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

// Resets at the end of a read, so that no lock outlives it.
class SqliteReset {
public:
    explicit SqliteReset(SqliteStatement& statement) : statement_(statement) {}
    ~SqliteReset() { statement_.reset(); }
    SqliteReset(const SqliteReset&) = delete;
    SqliteReset& operator=(const SqliteReset&) = delete;

private:
    SqliteStatement& statement_;
};

// A name within quotes.
std::string quoted_name(std::string_view name);

}  // namespace store
