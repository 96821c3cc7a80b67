// The raw interface of SQLite, for the floors: a file and its prepared statements, nothing else.
#pragma once

#include <QString>

#include <sqlite3.h>

#include <memory>
#include <string>

namespace bench {

class RawStatement;

class RawFile {
public:
    // `path` as in platform/paths.h.
    explicit RawFile(const QString& path);

    RawStatement prepare(const char* sql);
    void run(const char* sql);

private:
    struct Close {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };
    std::unique_ptr<sqlite3, Close> connection_;
};

class RawStatement {
public:
    RawStatement(sqlite3* connection, const char* sql);

    RawStatement& bind(int place, double value);
    RawStatement& bind(int place, const std::string& utf8);
    bool step();  // whether there is a row
    // Steps to the end and resets.
    void run();
    void reset() { sqlite3_reset(statement_.get()); }

    double number(int column) const { return sqlite3_column_double(statement_.get(), column); }
    std::string text(int column) const {  // a copy
        const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
        return utf8 ? std::string(utf8, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
                    : std::string();
    }

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

// Keeps the compiler from leaving work out whose result nobody reads.
template <typename T>
void keep(const T& value) {
    asm volatile("" : : "r,m"(value) : "memory");
}

}  // namespace bench
