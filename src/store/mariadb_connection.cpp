#include "store/mariadb_connection.h"

#include <errmsg.h>
#include <mysql.h>
#include <mysqld_error.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <new>

namespace store {

namespace {

constexpr unsigned connect_seconds = 5;
// Longer than a server waits for a lock on our behalf.
constexpr unsigned answer_seconds = 30;
constexpr std::size_t most_kept = 8;
// The greeting, the login and the settings.
constexpr std::int64_t trips_to_connect = 3;

// An apostrophe is doubled and nothing else has a meaning in a text. A lock is waited for as long as in a file; a
// workstation that vanished within a write leaves it after five minutes. On a cluster a reader sees what was committed
// at another node before.
constexpr auto settings =
    "SET SESSION sql_mode='STRICT_ALL_TABLES,NO_BACKSLASH_ESCAPES,NO_ENGINE_SUBSTITUTION',"
    "tx_isolation='READ-COMMITTED',innodb_lock_wait_timeout=5,lock_wait_timeout=5,idle_transaction_timeout=300,"
    "wsrep_sync_wait=1";

std::int64_t trips = 0;

// By the server's own words: which of the hosts answered last.
std::map<QString, qsizetype>& answering_hosts() {
    static std::map<QString, qsizetype> hosts;
    return hosts;
}

QString key_of(const ServerPlace& place) {
    return place.hosts.join(u',') + u'|' + QString::number(place.port) + u'|' + place.database + u'|' + place.user +
           u'|' + place.password + u'|' + (place.tls ? u't' : u'-') + place.certificate;
}

std::map<QString, std::vector<std::unique_ptr<MariadbConnection>>>& kept_connections() {
    static std::map<QString, std::vector<std::unique_ptr<MariadbConnection>>> kept;
    return kept;
}

}  // namespace

bool MariadbFailure::is_lost() const {
    switch (code) {
        case CR_SERVER_GONE_ERROR:
        case CR_SERVER_LOST:
        case CR_CONNECTION_ERROR:
        case CR_CONN_HOST_ERROR:
        case ER_CONNECTION_KILLED:
        case ER_SERVER_SHUTDOWN:
        case ER_UNKNOWN_COM_ERROR:  // what a node without its cluster answers
            return true;
        default:
            return false;
    }
}

bool MariadbFailure::is_conflict() const {
    return code == ER_LOCK_DEADLOCK;
}

std::int64_t MariadbConnection::Row::whole(int column) const {
    std::int64_t number = 0;
    if (!is_null(column)) std::from_chars(columns[column], columns[column] + sizes[column], number);
    return number;
}

void MariadbConnection::Close::operator()(st_mysql* connection) const {
    mysql_close(connection);
}

MariadbConnection::MariadbConnection(const ServerPlace& place) {
    qsizetype& answering = answering_hosts()[key_of(place)];
    const qsizetype hosts = place.hosts.size();
    for (qsizetype tried = 1;; ++tried) {
        try {
            connect(place, place.hosts[answering % hosts]);
            return;
        } catch (const MariadbFailure& failure) {
            answering = (answering + 1) % hosts;
            if (!failure.is_lost() || tried == hosts) throw;
        }
    }
}

void MariadbConnection::connect(const ServerPlace& place, const QString& host) {
    connection_.reset(mysql_init(nullptr));
    MYSQL* const connection = connection_.get();
    if (connection == nullptr) throw std::bad_alloc();
    const unsigned protocol = MYSQL_PROTOCOL_TCP;
    mysql_options(connection, MYSQL_OPT_PROTOCOL, &protocol);
    mysql_options(connection, MYSQL_OPT_CONNECT_TIMEOUT, &connect_seconds);
    mysql_options(connection, MYSQL_OPT_READ_TIMEOUT, &answer_seconds);
    mysql_options(connection, MYSQL_OPT_WRITE_TIMEOUT, &answer_seconds);
    mysql_options(connection, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (place.tls) {
        const my_bool yes = 1;
        mysql_options(connection, MYSQL_OPT_SSL_ENFORCE, &yes);
        mysql_options(connection, MYSQL_OPT_SSL_VERIFY_SERVER_CERT, &yes);
        if (!place.certificate.isEmpty())
            mysql_options(connection, MYSQL_OPT_SSL_CA, place.certificate.toUtf8().constData());
    }
    trips += trips_to_connect;
    const QStringList parts = host.split(u':');
    const auto port = static_cast<unsigned>(parts.size() > 1 ? parts[1].toInt() : place.port);
    if (mysql_real_connect(connection, parts[0].toUtf8(), place.user.toUtf8(), place.password.toUtf8(),
                           place.database.toUtf8(), port, nullptr,
                           CLIENT_FOUND_ROWS | CLIENT_MULTI_STATEMENTS) == nullptr)
        fail();
    if (mysql_query(connection, settings) != 0) fail();
}

void MariadbConnection::fail() const {
    throw MariadbFailure{mysql_errno(connection_.get()), mysql_error(connection_.get())};
}

std::vector<std::uint64_t> MariadbConnection::run(std::string_view statements, const TakeRow& take) {
    MYSQL* const connection = connection_.get();
    ++trips;
    if (mysql_real_query(connection, statements.data(), statements.size()) != 0) fail();
    std::vector<std::uint64_t> found;
    for (int more = 0; more == 0; more = mysql_next_result(connection)) {
        const std::unique_ptr<MYSQL_RES, void (*)(MYSQL_RES*)> rows(mysql_use_result(connection), mysql_free_result);
        if (!rows && mysql_field_count(connection) != 0) fail();
        while (const MYSQL_ROW row = rows ? mysql_fetch_row(rows.get()) : nullptr)
            if (take) take(found.size(), {row, mysql_fetch_lengths(rows.get())});
        if (mysql_errno(connection) != 0) fail();
        found.push_back(rows ? mysql_num_rows(rows.get()) : mysql_affected_rows(connection));
    }
    if (mysql_errno(connection) != 0) fail();
    return found;
}

std::int64_t MariadbConnection::round_trips() {
    return trips;
}

std::unique_ptr<MariadbConnection> take_connection(const ServerPlace& place) {
    auto& kept = kept_connections()[key_of(place)];
    if (kept.empty()) return std::make_unique<MariadbConnection>(place);
    auto connection = std::move(kept.back());
    kept.pop_back();
    return connection;
}

void keep_connection(const ServerPlace& place, std::unique_ptr<MariadbConnection> connection) {
    auto& kept = kept_connections()[key_of(place)];
    if (kept.size() < most_kept) kept.push_back(std::move(connection));
}

}  // namespace store
