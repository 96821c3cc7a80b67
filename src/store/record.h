// The data access of the whole program: open a database, open a table, pick an index, seek, walk, edit.
//
// A foreseen outcome is a result (NoMatch, Eof); everything else throws: std::system_error with
// store::category() for a duplicate key, a row that another workstation holds and a row that is gone,
// std::runtime_error for the rest (missing or damaged file, unknown table, field or index, full disk, a text
// that is no number for a number field, misuse). Every message is Turkish and names file and table.
#pragma once

#include "store/catalogue.h"
#include "store/value.h"

#include <QString>

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace store {

enum class Errc { duplicate_key = 1, locked, row_gone };
const std::error_category& category();
inline std::error_code make_error_code(Errc code) {
    return {static_cast<int>(code), category()};
}

class Recordset;

namespace detail {
void seek_prefix(Recordset& records, std::initializer_list<Value> prefix);
bool on_prefix(Recordset& records, std::initializer_list<Value> prefix);
}  // namespace detail

// One open file. Movable; closing it ends its record sets. A copy of the handle is not possible.
class Database {
public:
    Database();  // closed
    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();  // closes

    // Cursor on the first record of the table's primary order (its only or first named index).
    Recordset OpenRecordset(std::string_view table);
    void CreateTable(const TableDef& table);
    void Close();
    bool is_open() const;
    std::vector<TableDef> tables() const;
    // Another text after every write to the file, by whomever; the same while nobody writes, also when the file was
    // closed and opened again. Whoever keeps what he read may keep it for as long as the stamp from before the reading.
    std::string stamp() const;

    struct Session;

private:
    friend Database OpenDatabase(const QString&);
    friend Database CreateDatabase(const QString&);
    friend class WriteScope;
    std::shared_ptr<Session> session_;
};

// Shared, read-write. `path` as in platform/paths.h.
Database OpenDatabase(const QString& path);

// A new file; fails where one exists. It is scratch: no durability is paid for.
Database CreateDatabase(const QString& path);
// A new permanent file with these tables, complete or not there at all.
void create_file(const QString& path, const std::vector<TableDef>& tables);

// What a record set gives for a field: reads convert, an assignment goes to the edit buffer.
class Field {
public:
    const Value& value() const;  // holds until the cursor moves or the row is written
    QString text() const;        // Null is an empty text
    double number() const;       // Null is 0
    std::int64_t whole_number() const { return value().whole_number(); }
    const Value& required() const;  // throws on Null, naming the field
    // Legal between Edit or AddNew and Update only; converts to the field's type.
    void operator=(const Value& value);
    void operator=(const Field& other) { *this = other.value(); }

private:
    friend class Recordset;
    Field(Recordset& owner, int field) : owner_(owner), field_(field) {}
    Recordset& owner_;
    int field_;
};

// An open table with a cursor, ordered by its current index. Movable.
class Recordset {
public:
    Recordset();  // closed
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    void Index(std::string_view name);
    // comparison "=" or ">"; as many keys as given, at most as many as the index has fields. Key texts and
    // numbers convert to the field's type; a text counts by its numeric prefix.
    void Seek(std::string_view comparison, std::initializer_list<Value> keys);
    bool NoMatch() const;
    bool Eof() const;
    std::int64_t RecordCount() const;  // exact; walks the index
    bool has_rows() const;             // from the first row alone

    void MoveFirst();
    void MoveNext();
    void MoveLast();

    Field operator[](std::string_view name);
    const TableDef& definition() const;

    // Begins a write: waits up to 5 s for another workstation, reads the row anew. Until Update no other
    // workstation can write this file. Fails with row_gone where the row is deleted or has got another key.
    // Dropped by CancelUpdate and by the end of the record set; a move before that is misuse. An Edit on a second
    // record set of the same database joins the first: what either has written is committed when both have ended.
    void Edit();
    void AddNew();  // locks nothing until Update
    // The cursor stays where it was; on a row that has got another key it moves with it. After a failure the edit
    // is dropped.
    void Update();
    void CancelUpdate();
    void Delete();  // at once; the cursor is left on the deleted place until the next move

    void Close();
    bool is_open() const;

    struct Cursor;

private:
    friend class Database;
    friend class Field;
    friend void detail::seek_prefix(Recordset&, std::initializer_list<Value>);
    friend bool detail::on_prefix(Recordset&, std::initializer_list<Value>);
    explicit Recordset(std::unique_ptr<Cursor> cursor);
    Cursor& cursor() const;  // throws when closed
    std::unique_ptr<Cursor> cursor_;
};

// Many writes to one database as one commit; rolled back unless committed. Begins by waiting for the lock like
// Edit. Scopes on one database do not nest. On files that other workstations use, hold it for less than half
// a second, then leave the file free for 2 ms (`pause_if_due`).
class WriteScope {
public:
    explicit WriteScope(Database& database);
    ~WriteScope();  // also drops what is still in an edit
    WriteScope(const WriteScope&) = delete;
    WriteScope& operator=(const WriteScope&) = delete;

    void commit();
    // Commits what was written and begins again when the lock has been held for long enough.
    void pause_if_due();

private:
    std::shared_ptr<Database::Session> session_;
    std::int64_t since_ms_ = 0;
};

// Visits the rows whose leading key fields equal `prefix`, in key order, by the index that is set: seeks ">" on
// prefix and lowest text, and stops at the first row of another prefix. `handle` may return false to stop; it
// may edit or delete the row, but not move the cursor.
template <typename Handle>
void scan_prefix(Recordset& records, std::initializer_list<Value> prefix, Handle handle);
// Visits all rows in the order of the current index.
template <typename Handle>
void scan_all(Recordset& records, Handle handle);

namespace detail {
template <typename Handle>
bool goes_on(Handle& handle) {
    if constexpr (std::is_void_v<std::invoke_result_t<Handle&>>)
        return handle(), true;
    else
        return handle();
}
}  // namespace detail

template <typename Handle>
void scan_prefix(Recordset& records, std::initializer_list<Value> prefix, Handle handle) {
    detail::seek_prefix(records, prefix);
    while (detail::on_prefix(records, prefix)) {
        if (!detail::goes_on(handle)) return;
        records.MoveNext();
    }
}

template <typename Handle>
void scan_all(Recordset& records, Handle handle) {
    if (!records.has_rows()) return;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        if (!detail::goes_on(handle)) return;
}

}  // namespace store

template <>
struct std::is_error_code_enum<store::Errc> : std::true_type {};
