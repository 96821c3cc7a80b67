// Writes within a transaction. They go to the journal too, from which they can be repeated.
#include "store/mariadb_engine.h"
#include "store/mariadb_sql.h"
#include "store/messages.h"

#include <utility>

namespace store {

namespace {

constexpr std::size_t longest_insert = 1 << 20;  // bytes

}  // namespace

bool MariadbEngine::perform(std::string_view table, Write write) {
    const bool is_first = state_ == State::promised;
    journal_.add(write);
    if (std::exchange(holds_next_, false)) {
        journal_.held = std::move(write);
        return true;
    }
    return guarded(table, [&] {
        try {
            return run_write(write);
        } catch (const MariadbFailure& failure) {
            if (!journal_.can_repeat() || !(failure.is_conflict() || (failure.is_lost() && is_first))) {
                journal_.drop_last();
                throw;
            }
            if (failure.is_lost()) connection_.reset();
            repeat();
            return true;
        }
    });
}

bool MariadbEngine::run_write(const Write& write) {
    const bool begins = std::exchange(state_, State::open) == State::promised;
    return connection().run((begins ? beginning() : std::string()) + write.statement).back() > 0;
}

bool MariadbEngine::is_gone(std::string_view table, RowId row) {
    bool is_there = false;
    guarded(table, [&] {
        ask("SELECT row_id FROM " + quoted(table) + " WHERE row_id=" + std::to_string(row),
            [&](std::size_t, const MariadbConnection::Row&) { is_there = true; });
    });
    if (is_there) throw messages::outcome(Errc::locked, name_, table);
    return true;
}

void MariadbEngine::insert(const TableInfo& table, std::span<const Assignment> values) {
    const std::string& name = table.definition().name;
    perform(name, {name,
                   "INSERT INTO " + quoted(name) + mariadb_sql::columns(table, values) + " VALUES " +
                       mariadb_sql::row(table, values),
                   std::nullopt});
}

bool MariadbEngine::update(const TableInfo& table, RowId row, std::span<const Assignment> values) {
    if (values.empty()) return true;
    const std::string& name = table.definition().name;
    const std::string next = mariadb_sql::next_version(journal_.version(name, row));
    journal_.raise(name, row);
    return perform(name, {name,
                          "UPDATE " + quoted(name) + " SET " + mariadb_sql::assignments(table, values) +
                              ",row_version=" + next + " WHERE row_id=" + std::to_string(row),
                          row});
}

bool MariadbEngine::erase(const TableInfo& table, RowId row) {
    const std::string& name = table.definition().name;
    std::string statement = "DELETE FROM " + quoted(name) + " WHERE @@in_transaction AND row_id=" + std::to_string(row);
    if (const auto version = journal_.version(name, row)) statement += " AND row_version=" + std::to_string(*version);
    return perform(name, {name, std::move(statement), row}) || !is_gone(name, row);
}

void MariadbEngine::erase_all(const TableInfo& table) {
    const std::string& name = table.definition().name;
    perform(name, {name, "DELETE FROM " + quoted(name) + " WHERE @@in_transaction", std::nullopt});
}

void MariadbEngine::insert_rows(const TableInfo& table, const Batch& rows) {
    const std::string& name = table.definition().name;
    ShortTexts texts;
    std::vector<Assignment> values(table.field_count());
    std::string statement;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t field = 0; field < values.size(); ++field)
            values[field] = {static_cast<int>(field),
                             rows.value(row, rows.projection().slot_of(static_cast<int>(field)), texts)};
        if (statement.empty())
            statement = "INSERT INTO " + quoted(name) + mariadb_sql::columns(table, values) + " VALUES ";
        else
            statement += ',';
        statement += mariadb_sql::row(table, values);
        if (statement.size() < longest_insert && row + 1 < rows.size()) continue;
        perform(name, {name, std::exchange(statement, {}), std::nullopt});
    }
}

}  // namespace store
