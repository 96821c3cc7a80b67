#include "store/mariadb_engine.h"

#include "store/conversion.h"
#include "store/mariadb_sql.h"
#include "store/messages.h"

#include <errmsg.h>
#include <mysqld_error.h>

#include <charconv>
#include <chrono>
#include <thread>

namespace store {

namespace {

// One more than is needed for a lost connection: a node of a cluster may be gone as well.
constexpr int most_attempts = 2;
// A server that is started anew is back within this time.
constexpr auto longest_outage = std::chrono::seconds(6);
constexpr auto pause_between_attempts = std::chrono::milliseconds(200);
constexpr int columns_ahead = 2;  // the row's id and version

void append(FieldType type, const MariadbConnection::Row& row, int column, Batch& result) {
    if (row.is_null(column)) return result.add_null();
    const std::string_view text = row.text(column);
    if (is_text(type)) return result.add(text);
    if (is_whole(type)) return result.add(row.whole(column));
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    result.add(number);
}

}  // namespace

MariadbEngine::MariadbEngine(QString name, const ServerPlace& place, New)
    : name_(std::move(name)), place_(place), identity_("mariadb") {
    for (const QString& part : {place.hosts.join(u','), QString::number(place.port), place.database, place.prefix})
        identity_ += '|' + part.toStdString();
    guarded({}, [&] { connection_ = take_connection(place_); });
}

MariadbEngine::MariadbEngine(QString name, const ServerPlace& place) : MariadbEngine(std::move(name), place, New{}) {
    if (!knows_definitions()) read_definitions();
}

MariadbEngine::~MariadbEngine() {
    rollback();
    if (connection_) keep_connection(place_, std::move(connection_));
}

void MariadbEngine::fail(const MariadbFailure& failure, std::string_view of_table) {
    const std::string table(of_table);  // it may stand in the journal, which is emptied here
    const QString place = name_ + QStringLiteral(" (") + QString::fromStdString(failure.words) + u')';
    const bool was_writing = state_ == State::promised || state_ == State::open;
    end_where_undone(failure);
    switch (failure.code) {
        case ER_DUP_ENTRY:
            throw messages::outcome(Errc::duplicate_key, name_, table);
        case ER_LOCK_WAIT_TIMEOUT:
        case ER_LOCK_DEADLOCK:
        case ER_BAD_NULL_ERROR:  // another one has written this version of the row
            throw messages::outcome(Errc::locked, name_, table);
        case ER_NO_SUCH_TABLE:
            if (was_writing && is_retired())
                throw messages::error(u"Dosya yerinde değil; taşınmış, silinmiş ya da bağlantı kopmuş", name_, table);
            throw messages::error(u"Sunucuda bu dosyanın tablosu yok", place, table);
        case ER_DISK_FULL:
        case ER_RECORD_FILE_FULL:
            throw messages::error(u"Sunucunun diski dolu, yazılamadı", name_, table);
        case ER_DBACCESS_DENIED_ERROR:
        case ER_TABLEACCESS_DENIED_ERROR:
        case ER_OPTION_PREVENTS_STATEMENT:
            throw messages::error(u"Sunucuda bu işlem için izin yok", place, table);
        case ER_ACCESS_DENIED_ERROR:
            throw messages::error(u"Sunucu kullanıcıyı ya da parolayı kabul etmiyor", place);
        case CR_SSL_CONNECTION_ERROR:
            throw messages::error(u"Sunucuyla güvenli bağlantı (TLS) kurulamadı", place);
        case ER_BAD_DB_ERROR:
            throw messages::error(u"Sunucuda veritabanı yok", place);
        case ER_DATA_TOO_LONG:
        case ER_NET_PACKET_TOO_LARGE:
            throw messages::error(u"Metin sunucu için çok uzun, yazılamadı", place, table);
        default:
            break;
    }
    if (!failure.is_lost()) throw messages::error(u"Veritabanı sunucusunun hatası", place, table);
    if (was_writing) throw messages::error(u"Sunucuyla bağlantı koptu; değişiklik yazılmadı", place, table);
    throw messages::error(u"Veritabanı sunucusuna ulaşılamıyor", place, table);
}

// What is gone at the server must not seem open here: whatever is written next would stand alone. Nobody else may get
// a connection that was lost in the middle.
void MariadbEngine::end_where_undone(const MariadbFailure& failure) noexcept {
    if (failure.is_lost() || failure.code == ER_NET_PACKET_TOO_LARGE) {
        forget_transaction();
        connection_.reset();
    } else if (failure.is_conflict() || failure.code == ER_LOCK_WAIT_TIMEOUT) {
        rollback();
    } else if (failure.code == ER_NO_SUCH_TABLE || failure.code == ER_BAD_FIELD_ERROR ||
               failure.code == ER_KEY_DOES_NOT_EXISTS) {
        forget_definitions();
    }
}

MariadbConnection& MariadbEngine::connection() {
    if (!connection_) reconnect();
    return *connection_;
}

void MariadbEngine::reconnect() {
    const auto last_attempt = std::chrono::steady_clock::now() + longest_outage;
    for (;; std::this_thread::sleep_for(pause_between_attempts)) {
        try {
            connection_ = std::make_unique<MariadbConnection>(place_);
            return;
        } catch (const MariadbFailure& failure) {
            if (!failure.is_lost() || std::chrono::steady_clock::now() >= last_attempt) throw;
        }
    }
}

std::string MariadbEngine::prefixed(std::string_view table) const {
    return place_.prefix.toStdString() + '_' + std::string(table);
}

std::string MariadbEngine::quoted(std::string_view table) const {
    return mariadb_sql::quoted_name(prefixed(table));
}

std::string MariadbEngine::beginning() const {
    return "BEGIN;SELECT id FROM " + quoted("_lock") + " FOR UPDATE;";
}

void MariadbEngine::ask(const std::string& statements, const TakeRow& take, const std::function<void()>& restart) {
    const std::size_t ahead = state_ == State::promised ? statements_to_begin : 0;
    const std::string all = ahead > 0 ? beginning() + statements : statements;
    for (int attempts = 0;;) {
        try {
            if (restart) restart();
            connection().run(all, [&](std::size_t statement, const MariadbConnection::Row& row) {
                if (statement >= ahead) take(statement - ahead, row);
            });
            if (ahead > 0) state_ = State::open;
            return;
        } catch (const MariadbFailure& failure) {
            const bool nothing_is_open = state_ == State::none || state_ == State::promised;
            if (nothing_is_open && (failure.is_lost() || failure.is_conflict()) && attempts++ < most_attempts) {
                if (failure.is_lost()) connection_.reset();
            } else if (failure.is_conflict() && state_ == State::open && journal_.can_repeat()) {
                repeat();
            } else {
                if (ahead > 0) state_ = State::open;
                throw;
            }
        }
    }
}

void MariadbEngine::read(const ReadRequest& request, Batch& result) {
    const TableDef& table = request.table.definition();
    const bool keeps_version = request.kind == ReadRequest::Kind::row && state_ != State::none;
    guarded(table.name, [&] {
        std::size_t rows_of_first = 0, rows_of_second = 0;
        const auto take = [&](std::size_t statement, const MariadbConnection::Row& row) {
            if (statement == 1 && rows_of_first >= static_cast<std::size_t>(request.limit)) return;
            ++(statement == 0 ? rows_of_first : rows_of_second);
            const RowId id = row.whole(0);
            if (keeps_version) journal_.know(table.name, id, row.whole(1));
            result.begin_row(id);
            int column = columns_ahead;
            for (const int field : request.columns->fields)
                append(table.fields[static_cast<std::size_t>(field)].type, row, column++, result);
        };
        const auto restart = [&] {
            result.clear(request.columns);
            rows_of_first = rows_of_second = 0;
        };
        const std::vector<std::string> statements = mariadb_sql::read(prefixed(table.name), request);
        if (statements.size() == 1 || state_ != State::open) {
            ask(statements.size() == 1 ? statements[0] : statements[0] + ';' + statements[1], take, restart);
        } else {
            ask(statements[0], take, restart);
            const auto take_second = [&](std::size_t, const MariadbConnection::Row& row) { take(1, row); };
            ask(statements[1], take_second);
        }
        result.complete = rows_of_first < static_cast<std::size_t>(request.limit) && rows_of_second == 0;
    });
}

}  // namespace store
