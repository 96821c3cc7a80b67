#include "raw_store.h"

#include "platform/turkish.h"
#include "platform/paths.h"

#include <stdexcept>

namespace bench {

namespace {

void check(int code) {
    if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW) throw std::runtime_error(sqlite3_errstr(code));
}

int collate(void*, int left_size, const void* left, int right_size, const void* right) {
    return turkish::compare_utf8(static_cast<const char*>(left), left_size, static_cast<const char*>(right),
                                 right_size);
}

}  // namespace

RawFile::RawFile(const QString& path) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(paths::native(path).toUtf8().constData(), &opened,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(opened);
    check(code);
    check(sqlite3_create_collation_v2(opened, "TURKISH", SQLITE_UTF8, nullptr, collate, nullptr));
    run("PRAGMA synchronous=FULL");
}

RawStatement RawFile::prepare(const char* sql) {
    return {connection_.get(), sql};
}

void RawFile::run(const char* sql) {
    check(sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr));
}

RawStatement::RawStatement(sqlite3* connection, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(connection, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    statement_.reset(statement);
}

RawStatement& RawStatement::bind(int place, double value) {
    check(sqlite3_bind_double(statement_.get(), place, value));
    return *this;
}

RawStatement& RawStatement::bind(int place, const std::string& utf8) {
    check(sqlite3_bind_text64(statement_.get(), place, utf8.data(), utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

bool RawStatement::step() {
    const int code = sqlite3_step(statement_.get());
    check(code);
    return code == SQLITE_ROW;
}

void RawStatement::run() {
    while (step()) {
    }
    reset();
}

}  // namespace bench
