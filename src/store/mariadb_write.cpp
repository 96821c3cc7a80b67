// Transactions: one trip to begin one and read a row, one for a write with its commit.
#include "store/mariadb_engine.h"
#include "store/mariadb_sql.h"
#include "store/messages.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QSysInfo>

#include <utility>

namespace store {

namespace {

constexpr std::size_t statements_to_begin = 2;
constexpr std::size_t longest_insert = 1 << 20;  // bytes

// This process in the list of writers, never 0. The places come again, so that the list does not grow for ever.
std::uint32_t writer() {
    static const std::uint32_t number = [] {
        const auto machine = static_cast<std::uint32_t>(qHash(QSysInfo::machineUniqueId(), 0));
        return ((machine & 0x1FFFFFF) | 1) << 6 | static_cast<std::uint32_t>(QCoreApplication::applicationPid() % 64);
    }();
    return number;
}

std::int64_t new_token() {
    return static_cast<std::int64_t>(QRandomGenerator::global()->generate64() >> 1);
}

}  // namespace

void MariadbEngine::begin(std::string_view table, Wait wait) {
    forget_transaction();
    state_ = State::promised;
    if (wait == Wait::with_next) return;
    try {
        guarded(table, [&] { ask("DO 0", [](std::size_t, const MariadbConnection::Row&) {}); });
    } catch (...) {
        rollback();
        throw;
    }
}

void MariadbEngine::rollback() noexcept {
    const bool is_open = state_ == State::open;
    forget_transaction();
    if (!is_open) return;
    try {
        connection_->run("ROLLBACK");
    } catch (...) {
        return;  // the server does it when it finds the connection gone
    }
}

void MariadbEngine::forget_transaction() {
    state_ = State::none;
    holds_next_ = false;
    journal_.clear();
}

void MariadbEngine::commit(std::string_view table) {
    if (state_ == State::promised && !journal_.held) return forget_transaction();
    guarded(table, [&] {
        try {
            send_commit(table);
        } catch (const MariadbFailure& failure) {
            if (failure.is_lost()) {
                settle_lost_commit(table);
            } else if (failure.is_conflict() && journal_.can_repeat()) {
                repeat(table);
                send_commit(table);
            } else {
                throw;
            }
        }
    });
    forget_transaction();
}

void MariadbEngine::send_commit(std::string_view table) {
    journal_.token = new_token();
    const std::string place = std::to_string(writer()), token = std::to_string(journal_.token);
    const bool begins = std::exchange(state_, State::open) == State::promised;
    const auto held = journal_.held;
    const auto found =
        connection_->run((begins ? beginning() : std::string()) + (held ? held->statement + ';' : std::string()) +
                         "INSERT INTO " + quoted("_writers") + " VALUES (" + place + ",1," + token +
                         ") ON DUPLICATE KEY UPDATE commits=commits+1,token=" + token + ";COMMIT");
    if (!held || !held->row || found[begins ? statements_to_begin : 0] > 0) return;
    const RowId row = *held->row;
    forget_transaction();
    if (is_gone(table, row)) throw messages::outcome(Errc::row_gone, name_, table);
}

// The row of this writer stays locked by the lost transaction until the server has ended that.
bool MariadbEngine::was_committed() {
    bool found = false;
    reconnect();
    connection_->run("BEGIN;SELECT writer FROM " + quoted("_writers") + " WHERE writer=" + std::to_string(writer()) +
                         " AND token=" + std::to_string(journal_.token) + " FOR UPDATE;COMMIT",
                     [&](std::size_t, const MariadbConnection::Row&) { found = true; });
    return found;
}

// Whoever wrote more than one row went by what he had read under the lock, which was lost with the connection: that is
// not repeated.
void MariadbEngine::settle_lost_commit(std::string_view table) {
    try {
        if (was_committed()) return;
        if (journal_.count() == 1 && journal_.can_repeat()) {
            repeat(table);
            return send_commit(table);
        }
    } catch (const MariadbFailure& failure) {
        if (!failure.is_lost()) throw;
        forget_transaction();
        throw messages::error(
            u"Sunucuyla bağlantı koptu; değişikliğin yazılıp yazılmadığı bilinmiyor, bağlantı kurulunca kontrol edin",
            name_ + QStringLiteral(" (") + QString::fromStdString(failure.words) + u')', table);
    }
    forget_transaction();
    throw messages::error(u"Sunucuyla bağlantı koptu; değişiklik yazılmadı", name_, table);
}

void MariadbEngine::repeat(std::string_view table) {
    journal_.set_repeated();
    journal_.held.reset();
    connection_->run("ROLLBACK;" + beginning());
    state_ = State::open;
    for (const Write& write : journal_.writes())
        if (connection_->run(write.statement).back() == 0 && write.row)
            throw messages::outcome(Errc::locked, name_, table);
}

bool MariadbEngine::perform(std::string_view table, Write write) {
    journal_.add(write);
    if (std::exchange(holds_next_, false)) {
        journal_.held = std::move(write);
        return true;
    }
    return guarded(table, [&] {
        try {
            return run_write(write);
        } catch (const MariadbFailure& failure) {
            const bool is_lost_alone = failure.is_lost() && journal_.count() == 1;
            if (journal_.can_repeat() && (failure.is_conflict() || is_lost_alone)) {
                if (is_lost_alone) reconnect();
                repeat(table);
                return true;
            }
            journal_.drop_last();
            throw;
        }
    });
}

bool MariadbEngine::run_write(const Write& write) {
    const bool begins = std::exchange(state_, State::open) == State::promised;
    return connection_->run((begins ? beginning() : std::string()) + write.statement).back() > 0;
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
    std::string next = "row_version+1";
    if (const auto version = journal_.version(name, row)) {
        const std::string known = std::to_string(*version), raised = std::to_string(*version + 1);
        next = "IF(row_version=" + known + ',' + raised + ",NULL)";
        journal_.know(name, row, *version + 1);
    }
    return perform(name, {name,
                          "UPDATE " + quoted(name) + " SET " + mariadb_sql::assignments(table, values) +
                              ",row_version=" + next + " WHERE row_id=" + std::to_string(row),
                          row});
}

bool MariadbEngine::erase(const TableInfo& table, RowId row) {
    const std::string& name = table.definition().name;
    std::string statement = "DELETE FROM " + quoted(name) + " WHERE row_id=" + std::to_string(row);
    if (const auto version = journal_.version(name, row)) statement += " AND row_version=" + std::to_string(*version);
    return perform(name, {name, std::move(statement), row}) || !is_gone(name, row);
}

void MariadbEngine::erase_all(const TableInfo& table) {
    const std::string& name = table.definition().name;
    perform(name, {name, "DELETE FROM " + quoted(name), std::nullopt});
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
