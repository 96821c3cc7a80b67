// Transactions: one trip begins one and reads a row, one brings a write with its commit. A commit leaves a token in the
// row of its writer, by which it is found again where the answer has not come.
#include "store/mariadb_engine.h"
#include "store/messages.h"

#include <QRandomGenerator>

#include <mysqld_error.h>

#include <unordered_map>
#include <utility>

namespace store {

namespace {

constexpr int most_conflicts = 5;

// Above 0, which no writer has.
std::int64_t new_number() {
    return static_cast<std::int64_t>(QRandomGenerator::global()->generate64() >> 1) | 1;
}

// This process in the list of writers.
const std::string& writer() {
    static const std::string number = std::to_string(new_number());
    return number;
}

// What stands in the row of this writer, by the file.
std::int64_t& last_token(const std::string& identity) {
    static std::unordered_map<std::string, std::int64_t> tokens;
    return tokens[identity];
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
    const bool is_open = state_ == State::open || state_ == State::snapshot;
    forget_transaction();
    if (!is_open || !connection_) return;
    try {
        connection_->run("ROLLBACK");
    } catch (...) {
        connection_.reset();  // the server does it when it finds the connection gone
    }
}

void MariadbEngine::forget_transaction() {
    state_ = State::none;
    holds_next_ = false;
    journal_.clear();
}

void MariadbEngine::commit(std::string_view table) {
    if (state_ == State::none) throw messages::error(u"Yazma yarıda kesilmiş, kayıt yazılmadı", name_, table);
    if (state_ == State::promised && !journal_.held) return forget_transaction();
    guarded(table, [&] {
        for (;;) {
            try {
                return send_commit(table);
            } catch (const MariadbFailure& failure) {
                if (failure.is_lost() || failure.done > journal_.commit_place) {
                    if (has_arrived(table)) return;
                } else if (failure.is_conflict() && journal_.can_repeat()) {
                    repeat();
                } else {
                    throw;
                }
            }
        }
    });
    forget_transaction();
}

// The token goes from the known one to the next one: whatever of this writer arrives out of its turn fails. And it goes
// within a transaction only: a cluster may undo one between two statements without a word, and a look behind the commit
// shows whether it did so ahead of it.
void MariadbEngine::send_commit(std::string_view table) {
    std::int64_t& last = last_token(identity_);
    journal_.token = new_number();
    const std::string writers = quoted("_writers"), token = std::to_string(journal_.token);
    const bool begins = std::exchange(state_, State::open) == State::promised;
    const auto held = journal_.held;
    const std::size_t place_of_held = begins ? statements_to_begin : 0;
    journal_.commit_place = place_of_held + (held ? 1 : 0) + 1;
    const std::size_t place_of_token = journal_.commit_place + 1;
    std::int64_t stored = 0;
    const auto found = connection().run(
        (begins ? beginning() : std::string()) + (held ? held->statement + ';' : std::string()) + "INSERT INTO " +
            writers + " (writer,commits,token) VALUES (" + writer() + ",1,IF(@@in_transaction," + token +
            ",NULL)) ON DUPLICATE KEY UPDATE commits=commits+1,token=IF(@@in_transaction AND token=" +
            std::to_string(last) + ',' + token + ",NULL);COMMIT;SELECT token FROM " + writers +
            " WHERE writer=" + writer(),
        [&](std::size_t statement, const MariadbConnection::Row& row) {
            if (statement == place_of_token) stored = row.whole(0);
        });
    if (stored != journal_.token) throw MariadbFailure{ER_LOCK_DEADLOCK, "undone ahead of the commit"};
    last = stored;
    if (!held || !held->row || found[place_of_held] > 0) return;
    const RowId row = *held->row;
    forget_transaction();
    if (is_gone(table, row)) throw messages::outcome(Errc::row_gone, name_, table);
}

// Puts a token of its own in the place of the last one: what was sent and has not arrived will not commit any more.
bool MariadbEngine::was_committed() {
    std::int64_t& last = last_token(identity_);
    const std::int64_t barrier = new_number();
    const std::string writers = quoted("_writers"), of_writer = " WHERE writer=" + writer();
    std::int64_t found = 0;
    for (int conflicts = 0;;) {
        try {
            connection().run("BEGIN;INSERT INTO " + writers + " (writer,commits,token) VALUES (" + writer() + ",0," +
                                 std::to_string(last) + ") ON DUPLICATE KEY UPDATE commits=commits;SELECT token FROM " +
                                 writers + of_writer + " FOR UPDATE",
                             [&](std::size_t, const MariadbConnection::Row& row) { found = row.whole(0); });
            connection().run("UPDATE " + writers + " SET token=" + std::to_string(barrier) + of_writer);
            connection().run("COMMIT");
            break;
        } catch (const MariadbFailure& failure) {
            if (!failure.is_conflict() || ++conflicts > most_conflicts) throw;
        }
    }
    last = barrier;
    return found == journal_.token;
}

// Whoever wrote more than one row went by what he had read under the lock, which was lost with the connection: that is
// not repeated.
bool MariadbEngine::has_arrived(std::string_view table) {
    connection_.reset();
    try {
        if (was_committed()) return true;
    } catch (const MariadbFailure& failure) {
        forget_transaction();
        connection_.reset();
        throw messages::error(
            u"Sunucuyla bağlantı koptu; değişikliğin yazılıp yazılmadığı bilinmiyor, bağlantı kurulunca kontrol edin",
            name_ + QStringLiteral(" (") + QString::fromStdString(failure.words) + u')', table);
    }
    if (journal_.count() != 1 || !journal_.can_repeat()) {
        forget_transaction();
        throw messages::error(u"Sunucuyla bağlantı koptu; değişiklik yazılmadı", name_, table);
    }
    repeat();
    return false;
}

void MariadbEngine::repeat() {
    journal_.set_repeated();
    journal_.held.reset();
    state_ = State::open;
    try {
        guarded({}, [&] {
            connection().run(
                "ROLLBACK;SELECT token FROM " + quoted("_writers") + " WHERE writer=" + writer() + ';' + beginning(),
                [&](std::size_t statement, const MariadbConnection::Row& row) {
                    if (statement == 1) last_token(identity_) = row.whole(0);
                });
        });
        for (const Write& write : journal_.writes()) {
            const auto found = guarded(write.table, [&] { return connection().run(write.statement); });
            if (found.back() == 0 && write.row) throw messages::outcome(Errc::locked, name_, write.table);
        }
    } catch (...) {
        rollback();
        throw;
    }
}

}  // namespace store
