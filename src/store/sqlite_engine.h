// The tables in one SQLite database file, shared by the workstations of the office: rollback journal, every commit on
// the disk before it returns, no lock held between two reads.
#pragma once

#include "store/engine.h"
#include "store/sqlite_query.h"
#include "store/sqlite_statement.h"

#include <chrono>
#include <unordered_map>

namespace store {

class SqliteEngine : public Engine {
public:
    // Opens an existing file. `name` is the file as the office writes it.
    SqliteEngine(QString name, const QString& native_path);
    // Makes a new file, unsafe against a cut until `flush`.
    static std::unique_ptr<SqliteEngine> create(const QString& name, const QString& native_path);
    void flush();

    std::string identity() const override { return identity_; }
    std::vector<TableDef> tables() override;
    TableInfo& table(std::string_view name) override;
    void create_table(const TableDef& table) override;
    void read(const ReadRequest& request, Batch& result) override;
    std::int64_t count(const TableInfo& table) override;
    std::string stamp() override;
    std::int64_t version() override;
    void copy_to(const QString& name, const QString& native_path) override;
    QStringList damages() override;
    void begin(std::string_view table, Wait wait) override;
    void commit(std::string_view table) override;
    void rollback() noexcept override;
    bool in_transaction() const override { return sqlite3_get_autocommit(connection_.get()) == 0; }
    void insert(const TableInfo& table, std::span<const Assignment> values) override;
    bool update(const TableInfo& table, RowId row, std::span<const Assignment> values) override;
    bool erase(const TableInfo& table, RowId row) override;
    void erase_all(const TableInfo& table) override;

private:
    struct New {};
    SqliteEngine(QString name, const QString& native_path, New);
    void connect(const QString& native_path);
    void check_header();
    void copy_into(SqliteEngine& target);
    // These say whether no row is left behind those that they took.
    bool read_at_once(const ReadRequest& request, Batch& result);
    bool read_by_ranges(const ReadRequest& request, Batch& result);
    bool take_rows(SqliteStatement& statement, const ReadRequest& request, Batch& result);
    SqliteStatement& select(const ReadRequest& request, const ReadShape& shape);
    SqliteStatement& statement(const std::string& sql);
    void execute(const std::string& sql) { statement(sql).run(); }
    TableDef define(std::string_view name);
    SqliteStatement& inserting(const TableInfo& table, std::span<const Assignment> values);
    void bind_all(SqliteStatement& statement, std::span<const Assignment> values);
    // Runs `action` and turns a failure of SQLite into the store's words.
    template <typename Action>
    auto guarded(std::string_view table, Action action) {
        try {
            return action();
        } catch (const SqliteFailure& failure) {
            fail(failure.code, table);
        }
    }
    [[noreturn]] void fail(int code, std::string_view table) const;
    static int wait_for_lock(void* self, int attempt);

    static constexpr std::size_t most_reads = 200;  // prepared statements kept

    QString name_;
    std::string identity_;
    SqliteConnection connection_;  // before the statements, which must go first
    std::unordered_map<std::uint64_t, SqliteStatement> reads_;
    std::unordered_map<std::string, SqliteStatement> statements_;
    std::unordered_map<std::string, SqliteStatement> inserts_;  // by table and fields
    std::unordered_map<std::string, TableInfo*> tables_;
    ShortTexts key_texts_;  // of rows that are compared while they are read
    std::chrono::steady_clock::time_point waiting_since_;
};

}  // namespace store
