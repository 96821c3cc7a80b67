// The tables of one school's file on a MariaDB server or a cluster of several.
//
// The lock of a file is a row of its own that every writer holds, so a workstation waits for another one exactly as at
// a file. A cluster knows that lock at each node alone: there, a row that was written at another node meanwhile is
// recognised by its version.
#pragma once

#include "store/engine.h"
#include "store/mariadb_connection.h"
#include "store/mariadb_journal.h"

#include <memory>
#include <optional>
#include <string>

namespace store {

class MariadbEngine : public Engine {
public:
    // Opens the tables that `place` names. `name` is the file as the office writes it.
    MariadbEngine(QString name, const ServerPlace& place);
    ~MariadbEngine() override;

    // Makes the tables of a new file there; fails where there are some of this prefix already.
    static void create(const QString& name, const ServerPlace& place, const std::vector<TableDef>& tables);
    // Removes the tables of this prefix, whatever they hold.
    static void drop(const QString& name, const ServerPlace& place);
    // Whether there are tables of this prefix.
    static bool exists(const QString& name, const ServerPlace& place);
    // How often this process has waited for an answer of a server since it began.
    static std::int64_t round_trips() { return MariadbConnection::round_trips(); }

    std::string identity() const override { return identity_; }
    bool is_far() const override { return true; }
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
    void expect_commit() override { holds_next_ = true; }
    void commit(std::string_view table) override;
    void rollback() noexcept override;
    bool in_transaction() const override { return state_ != State::none; }
    void insert(const TableInfo& table, std::span<const Assignment> values) override;
    bool update(const TableInfo& table, RowId row, std::span<const Assignment> values) override;
    bool erase(const TableInfo& table, RowId row) override;
    void erase_all(const TableInfo& table) override;
    void insert_rows(const TableInfo& table, const Batch& rows) override;

    // Ends all writing, by whomever, until it is undone: the file lies elsewhere now. Waits up to 5 s for a writer in
    // the middle. Another writer may come first: whoever goes by what he has read compares `version` afterwards.
    void retire();
    void reinstate();
    bool is_retired();

private:
    enum class State {
        none,
        promised,  // begins with the next statement
        open,
        snapshot,  // reads of one moment
    };
    using Write = MariadbJournal::Write;
    using TakeRow = MariadbConnection::TakeRow;

    struct New {};
    MariadbEngine(QString name, const ServerPlace& place, New);
    std::string prefixed(std::string_view table) const;  // the table's name at the server
    std::string quoted(std::string_view table) const;
    std::string beginning() const;  // begins a transaction and waits for the lock
    bool has_table(std::string_view table);
    void rename_lock(std::string_view from, std::string_view to);
    void read_definitions();
    QStringList false_keys(const TableDef& table);
    bool knows_definitions() const;

    // Runs statements that change nothing, behind the beginning of a promised transaction. `restart` forgets what was
    // taken before the connection was lost and made anew.
    void ask(const std::string& statements, const TakeRow& take, const std::function<void()>& restart = {});
    bool perform(std::string_view table, Write write);
    bool run_write(const Write& write);
    void send_commit(std::string_view table);
    // Whether it had arrived; where it had not, the transaction is as if it had not been sent, or fails as not written.
    bool has_arrived(std::string_view table);
    bool was_committed();
    // Writes again what another node's write or a lost connection has undone; fails as locked where a row has changed.
    void repeat();
    MariadbConnection& connection();
    void reconnect();
    void forget_transaction();
    void forget_definitions();
    void forget_old_writers();
    void end_where_undone(const MariadbFailure& failure) noexcept;
    // Whether the row was erased meanwhile; where another one has written it, fails as locked.
    bool is_gone(std::string_view table, RowId row);

    template <typename Action>
    auto guarded(std::string_view table, Action action) {
        try {
            return action();
        } catch (const MariadbFailure& failure) {
            fail(failure, table);
        }
    }
    [[noreturn]] void fail(const MariadbFailure& failure, std::string_view table);

    static constexpr std::size_t statements_to_begin = 2;

    QString name_;
    ServerPlace place_;
    std::string identity_;
    std::unique_ptr<MariadbConnection> connection_;  // none after a loss
    State state_ = State::none;
    bool holds_next_ = false;  // the next write goes with the commit
    MariadbJournal journal_;   // of the open transaction
};

}  // namespace store
