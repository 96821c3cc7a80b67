// The narrow interface between the record store and what holds the tables. It speaks of rows, keys and batches; only
// an engine knows files, connections or a query language.
#pragma once

#include "store/batch.h"
#include "store/record.h"

#include <QStringList>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace store {

// What to read. Keys are of their fields' types (conversion.h), leading fields first.
struct ReadRequest {
    enum class Kind : std::uint8_t {
        first,  // from the first row on
        last,   // the last row alone
        equal,  // rows whose leading keys equal `keys`
        after,  // rows behind `keys`; with `row`, behind that row of these keys (then all keys are given)
        row,    // the row `row` alone
    };
    static constexpr RowId no_row = -1;
    // In place of an index: the order of entry. Goes with `first`, and with `after` a row without keys.
    static constexpr int by_entry = -1;

    Kind kind;
    const TableInfo& table;
    int index;
    const ProjectionPtr& columns;
    std::span<const Value> keys = {};
    RowId row = no_row;
    int limit = 1;
    // Stop behind the first row whose leading key is another than this: who reads one student's rows needs no more.
    const Value* leading = nullptr;
};

struct Assignment {
    int field;
    Value value;  // of the field's type
};

// One open file. Reads outside a transaction hold no lock once they return. Failures throw as record.h says.
class Engine {
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // Where the tables really lie, the same for every open of the same file: writes of one are told to the others.
    virtual std::string identity() const = 0;
    virtual std::vector<TableDef> tables() = 0;
    virtual TableInfo& table(std::string_view name) = 0;
    virtual void create_table(const TableDef& table) = 0;

    virtual void read(const ReadRequest& request, Batch& result) = 0;
    virtual std::int64_t count(const TableInfo& table) = 0;

    // Another text after every write to the file, by whomever; the same for all openers while nobody writes.
    virtual std::string stamp() = 0;
    // Another number as soon as another opener of the file has committed a write.
    virtual std::int64_t version() = 0;
    // Copies the whole file as it stands at one moment: to a new file, on the disk when this returns, or into one of
    // ours as a single write. Holds no lock for longer than a moment while others write.
    virtual void copy_to(const QString& name, const QString& native_path) = 0;
    // What is wrong with the file's structure, in the engine's own words; empty for a sound one.
    virtual QStringList damages() = 0;

    // Every call costs a trip over the network: more rows are read at once than are asked for.
    virtual bool is_far() const { return false; }

    enum class Wait : std::uint8_t {
        now,
        with_next,  // an engine that is far away may wait when the next read or write is sent
    };
    // Waits up to 5 s for another writer of this file. `table` is named in the message.
    virtual void begin(std::string_view table, Wait wait) = 0;
    // The next write is the last of the transaction: it may be sent together with the commit, which then fails for it.
    virtual void expect_commit() {}
    virtual void commit(std::string_view table) = 0;
    virtual void rollback() noexcept = 0;
    // A failure may have ended the transaction.
    virtual bool in_transaction() const = 0;

    // Within a transaction only. A failure leaves the other writes of the transaction as they are.
    virtual void insert(const TableInfo& table, std::span<const Assignment> values) = 0;
    virtual bool update(const TableInfo& table, RowId row, std::span<const Assignment> values) = 0;  // false: gone
    virtual bool erase(const TableInfo& table, RowId row) = 0;                                       // false: gone
    virtual void erase_all(const TableInfo& table) = 0;
    // Adds rows that hold all fields of the table, in their order.
    virtual void insert_rows(const TableInfo& table, const Batch& rows);
};

// The engine that the file at `native_path` asks for; refuses with words what no engine serves. `name` is the file as
// the office writes it, for messages.
std::unique_ptr<Engine> open_engine(const QString& name, const QString& native_path);

// A new file, which fails where one exists. It is scratch: nothing waits for the disk.
std::unique_ptr<Engine> create_engine(const QString& name, const QString& native_path);

// A new file with these tables, on the disk when this returns; what is there after a failure is no database.
void create_engine_file(const QString& name, const QString& native_path, const std::vector<TableDef>& tables);

// Renames a file, with what its engine keeps beside it, by the ending ".bozuk".
void set_engine_file_aside(const QString& name, const QString& native_path);

}  // namespace store
