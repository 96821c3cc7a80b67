#include "store/sqlite_engine.h"

#include "platform/turkish.h"
#include "store/conversion.h"
#include "store/messages.h"
#include "store/sqlite_query.h"

#include <QFileInfo>

#include <new>
#include <thread>

namespace store {

namespace {

using Form = ReadShape::Form;

constexpr auto longest_wait = std::chrono::seconds(5);
// Short against the 2 ms for which a busy writer leaves the file free, so that a waiting workstation gets its turn.
constexpr auto poll_interval = std::chrono::milliseconds(2);
constexpr int long_read = 256;  // rows

int collate(void*, int left_size, const void* left, int right_size, const void* right) {
    return turkish::compare_utf8(static_cast<const char*>(left), left_size, static_cast<const char*>(right),
                                 right_size);
}

std::uint16_t null_mask(std::span<const Value> keys) {
    unsigned mask = 0;
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (keys[i].is_null()) mask |= 1u << i;
    return static_cast<std::uint16_t>(mask);
}

void bind_keys(SqliteStatement& statement, std::span<const Value> keys, RowId row) {
    int place = 0;
    for (const Value& key : keys)
        if (!key.is_null()) statement.bind(++place, key);
    if (row != ReadRequest::no_row) statement.bind(++place, row);
}

}  // namespace

SqliteEngine::SqliteEngine(QString name, const QString& native_path) : name_(std::move(name)) {
    connect(native_path);
    check_header();
}

void SqliteEngine::connect(const QString& native_path) {
    identity_ = QFileInfo(native_path).canonicalFilePath().toStdString();
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(native_path.toUtf8().constData(), &opened,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(opened);
    if (code != SQLITE_OK) throw messages::error(u"Dosya açılamıyor", name_);
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_handler(opened, wait_for_lock, this);
    if (sqlite3_create_collation_v2(opened, "TURKISH", SQLITE_UTF8, nullptr, collate, nullptr) != SQLITE_OK)
        throw std::bad_alloc();
}

void SqliteEngine::fail(int code, std::string_view table) const {
    if (code == SQLITE_CONSTRAINT_UNIQUE) throw messages::outcome(Errc::duplicate_key, name_, table);
    if (code == SQLITE_READONLY_DBMOVED)
        throw messages::error(u"Dosya yerinde değil; taşınmış, silinmiş ya da bağlantı kopmuş", name_, table);
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw messages::outcome(Errc::locked, name_, table);
        case SQLITE_FULL:
            throw messages::error(u"Disk dolu, yazılamadı", name_, table);
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_CANTOPEN:
            throw messages::error(u"Dosyaya yazma izni yok", name_, table);
        case SQLITE_IOERR:
            throw messages::error(u"Dosya okunurken ya da yazılırken aygıt hatası", name_, table);
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            throw messages::error(u"Dosya bozuk", name_, table);
        case SQLITE_NOMEM:
            throw std::bad_alloc();
        default:
            throw messages::error(u"Veritabanı hatası",
                                  name_ + QStringLiteral(" (") + messages::name(sqlite3_errstr(code)) +
                                      QStringLiteral(": ") + messages::name(sqlite3_errmsg(connection_.get())) + u')',
                                  table);
    }
}

int SqliteEngine::wait_for_lock(void* self, int attempt) {
    auto& engine = *static_cast<SqliteEngine*>(self);
    const auto now = std::chrono::steady_clock::now();
    if (attempt == 0) engine.waiting_since_ = now;
    if (now - engine.waiting_since_ >= longest_wait) return 0;
    std::this_thread::sleep_for(poll_interval);
    return 1;
}

SqliteStatement& SqliteEngine::statement(const std::string& sql) {
    const auto found = statements_.find(sql);
    if (found != statements_.end()) return found->second;
    return statements_.try_emplace(sql, connection_.get(), sql).first->second;
}

void SqliteEngine::read(const ReadRequest& request, Batch& result) {
    result.clear(request.columns);
    guarded(request.table.definition().name, [&] {
        const bool by_ranges =
            request.kind == ReadRequest::Kind::after &&
            (null_mask(request.keys) != 0 || (request.keys.size() > 1 && request.limit >= long_read));
        result.complete = by_ranges ? read_by_ranges(request, result) : read_at_once(request, result);
    });
}

SqliteStatement& SqliteEngine::select(const ReadRequest& request, const ReadShape& shape) {
    const std::uint64_t code = shape.code(*request.columns);
    const auto found = reads_.find(code);
    if (found != reads_.end()) return found->second;
    if (reads_.size() >= most_reads) reads_.clear();
    const std::string sql = read_sql(request.table, shape, *request.columns);
    return reads_.try_emplace(code, connection_.get(), sql).first->second;
}

bool SqliteEngine::read_at_once(const ReadRequest& request, Batch& result) {
    const bool behind_row = request.row != ReadRequest::no_row;
    const int keys = static_cast<int>(request.keys.size());
    ReadShape shape{Form::all, request.index, keys, null_mask(request.keys)};
    switch (request.kind) {
        case ReadRequest::Kind::first:
            break;
        case ReadRequest::Kind::last:
            shape.form = Form::descending;
            break;
        case ReadRequest::Kind::row:
            shape.form = Form::row;
            break;
        case ReadRequest::Kind::equal:
            shape.form = Form::equal;
            break;
        case ReadRequest::Kind::after:
            if (keys == 0)
                shape.form = Form::equal_later_row;
            else
                shape.form = behind_row ? Form::tuple_or_later_row : Form::tuple;
    }
    SqliteStatement& rows = select(request, shape);
    bind_keys(rows, request.keys, request.row);
    return take_rows(rows, request, result);
}

// The rows behind a key range by range: the later ones with equal keys, then those that are greater in the last key, in
// the one before it, and so on. A comparison with Null finds nothing, so a key that holds one needs this; and a
// comparison of several keys as one is made for each row anew, which the ranges of a long read save.
bool SqliteEngine::read_by_ranges(const ReadRequest& request, Batch& result) {
    const auto mask = null_mask(request.keys);
    const auto take = [&](Form form, std::size_t keys, RowId row) {
        const auto leading = request.keys.first(keys);
        SqliteStatement& rows = select(request, {form, request.index, static_cast<int>(keys), null_mask(leading)});
        bind_keys(rows, leading, row);
        return take_rows(rows, request, result);
    };
    if (request.row != ReadRequest::no_row && !take(Form::equal_later_row, request.keys.size(), request.row))
        return false;
    for (std::size_t keys = request.keys.size(); keys > 0; --keys) {
        const bool is_null = (mask >> (keys - 1) & 1) != 0;
        if (!take(is_null ? Form::behind_null : Form::greater, keys, ReadRequest::no_row)) return false;
    }
    return true;
}

bool SqliteEngine::take_rows(SqliteStatement& statement, const ReadRequest& request, Batch& result) {
    const SqliteReset reset(statement);
    const int width = static_cast<int>(request.columns->width());
    const int leading_slot =
        request.leading ? request.columns->slot_of(request.table.index_at(request.index).fields.front()) : -1;
    while (statement.step()) {
        result.begin_row(statement.whole(0));
        for (int column = 1; column <= width; ++column) statement.append(column, result);
        if (result.size() >= static_cast<std::size_t>(request.limit)) return false;
        if (!request.leading) continue;
        const Value key = result.value(result.size() - 1, leading_slot, key_texts_);
        if (compare_keys(key, *request.leading) != 0) return false;
    }
    return true;
}

std::int64_t SqliteEngine::count(const TableInfo& table) {
    const std::string& name = table.definition().name;
    return guarded(name, [&] {
        SqliteStatement& counting = statement("SELECT COUNT(*) FROM " + quoted_name(name));
        const SqliteReset reset(counting);
        counting.step();
        return counting.whole(0);
    });
}

void SqliteEngine::begin(std::string_view table, Wait) {
    guarded(table, [&] { execute("BEGIN IMMEDIATE"); });
}

void SqliteEngine::commit(std::string_view table) {
    guarded(table, [&] { execute("COMMIT"); });
}

void SqliteEngine::rollback() noexcept {
    if (in_transaction()) sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteEngine::bind_all(SqliteStatement& statement, std::span<const Assignment> values) {
    int place = 0;
    for (const Assignment& assignment : values) statement.bind(++place, assignment.value);
}

// Whoever adds many rows names the same fields in the same order each time: the long statement is worded once.
SqliteStatement& SqliteEngine::inserting(const TableInfo& table, std::span<const Assignment> values) {
    const TableDef& definition = table.definition();
    std::string key = definition.name + ':';
    for (const Assignment& value : values) (key += std::to_string(value.field)) += ',';
    const auto found = inserts_.find(key);
    if (found != inserts_.end()) return found->second;
    std::string columns, marks;
    for (const Assignment& value : values) {
        columns +=
            (columns.empty() ? "" : ",") + quoted_name(definition.fields[static_cast<std::size_t>(value.field)].name);
        marks += marks.empty() ? "?" : ",?";
    }
    const std::string sql = "INSERT INTO " + quoted_name(definition.name) +
                            (values.empty() ? " DEFAULT VALUES" : " (" + columns + ") VALUES (" + marks + ")");
    return inserts_.try_emplace(std::move(key), connection_.get(), sql).first->second;
}

void SqliteEngine::insert(const TableInfo& table, std::span<const Assignment> values) {
    guarded(table.definition().name, [&] {
        SqliteStatement& statement = inserting(table, values);
        bind_all(statement, values);
        statement.run();
    });
}

bool SqliteEngine::update(const TableInfo& table, RowId row, std::span<const Assignment> values) {
    if (values.empty()) return true;
    const std::string& name = table.definition().name;
    std::string sql = "UPDATE " + quoted_name(name) + " SET ";
    for (const Assignment& value : values)
        sql += quoted_name(table.definition().fields[static_cast<std::size_t>(value.field)].name) +
               (&value == &values.back() ? "=?" : "=?,");
    sql += " WHERE rowid=?";
    return guarded(name, [&] {
        SqliteStatement& updating = statement(sql);
        bind_all(updating, values);
        updating.bind(static_cast<int>(values.size()) + 1, row);
        updating.run();
        return sqlite3_changes(connection_.get()) > 0;
    });
}

bool SqliteEngine::erase(const TableInfo& table, RowId row) {
    const std::string& name = table.definition().name;
    return guarded(name, [&] {
        SqliteStatement& erasing = statement("DELETE FROM " + quoted_name(name) + " WHERE rowid=?");
        erasing.bind(1, row);
        erasing.run();
        return sqlite3_changes(connection_.get()) > 0;
    });
}

void SqliteEngine::erase_all(const TableInfo& table) {
    const std::string& name = table.definition().name;
    guarded(name, [&] { execute("DELETE FROM " + quoted_name(name)); });
}

}  // namespace store
