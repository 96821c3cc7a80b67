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
// The greeting and the login.
constexpr std::int64_t trips_to_connect = 2;

// An apostrophe is doubled and nothing else has a meaning in a text. A lock is waited for as long as in a file; a
// workstation that vanished within a write leaves it after five minutes. On a cluster a reader sees what was committed
// at another node before.
constexpr auto settings =
    "SET NAMES utf8mb4;"
    "SET SESSION sql_mode='STRICT_ALL_TABLES,NO_BACKSLASH_ESCAPES,NO_ENGINE_SUBSTITUTION',autocommit=1,"
    "tx_isolation='READ-COMMITTED',innodb_lock_wait_timeout=5,lock_wait_timeout=5,idle_transaction_timeout=300,"
    "max_statement_time=0,sql_safe_updates=0,sql_select_limit=18446744073709551615;"
    "SELECT @@max_allowed_packet";

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
        case CR_UNKNOWN_HOST:
        case ER_CON_COUNT_ERROR:
        case ER_CONNECTION_KILLED:
        case ER_SERVER_SHUTDOWN:
        case ER_UNKNOWN_COM_ERROR:  // what a node without its cluster answers
            return true;
        default:
            return false;
    }
}

bool MariadbFailure::is_conflict() const {
    return code == ER_LOCK_DEADLOCK || code == ER_BAD_NULL_ERROR;
}

bool MariadbFailure::is_refusal() const {
    return code == ER_ACCESS_DENIED_ERROR || code == ER_DBACCESS_DENIED_ERROR || code == ER_BAD_DB_ERROR;
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
            if (failure.is_refusal() || tried == hosts) throw;
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
    const unsigned no_files = 0;
    mysql_options(connection, MYSQL_OPT_LOCAL_INFILE, &no_files);
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
    most_bytes_ = SIZE_MAX;
    std::int64_t most = 0;
    run(settings, [&](std::size_t, const Row& row) { most = row.whole(0); });
    join_cluster();
    most_bytes_ = static_cast<std::size_t>(most) - 1;
}

// On an encrypted connection the end of the other side is a failure of the encryption.
void MariadbConnection::fail(std::size_t done) const {
    const unsigned code = mysql_errno(connection_.get());
    const bool is_connected = most_bytes_ != SIZE_MAX;
    throw MariadbFailure{is_connected && code == CR_SSL_CONNECTION_ERROR ? CR_SERVER_LOST : code,
                         mysql_error(connection_.get()), done};
}

// A node that has lost the others still lets itself be set up and asked for what stands in no table.
void MariadbConnection::join_cluster() {
    bool is_node = false, is_ready = false;
    try {
        run("SET SESSION wsrep_sync_wait=1;SELECT @@wsrep_on;SHOW STATUS LIKE 'wsrep_ready'",
            [&](std::size_t statement, const Row& row) {
                if (statement == 1) is_node = row.whole(0) != 0;
                if (statement == 2) is_ready = row.text(1) == "ON";
            });
    } catch (const MariadbFailure& failure) {
        if (failure.code != ER_UNKNOWN_SYSTEM_VARIABLE) throw;  // of a server that cannot be part of a cluster
    }
    if (is_node && !is_ready) throw MariadbFailure{ER_UNKNOWN_COM_ERROR, "wsrep_ready=OFF"};
}

std::vector<std::uint64_t> MariadbConnection::run(std::string_view statements, const TakeRow& take) {
    MYSQL* const connection = connection_.get();
    if (statements.size() > most_bytes_)
        throw MariadbFailure{ER_NET_PACKET_TOO_LARGE, "max_allowed_packet " + std::to_string(most_bytes_ + 1)};
    ++trips;
    if (mysql_real_query(connection, statements.data(), statements.size()) != 0) fail();
    std::vector<std::uint64_t> found;
    for (int more = 0; more == 0; more = mysql_next_result(connection)) {
        const std::unique_ptr<MYSQL_RES, void (*)(MYSQL_RES*)> rows(mysql_use_result(connection), mysql_free_result);
        if (!rows && mysql_field_count(connection) != 0) fail(found.size());
        while (const MYSQL_ROW row = rows ? mysql_fetch_row(rows.get()) : nullptr)
            if (take) take(found.size(), {row, mysql_fetch_lengths(rows.get())});
        if (mysql_errno(connection) != 0) fail(found.size());
        found.push_back(rows ? mysql_num_rows(rows.get()) : mysql_affected_rows(connection));
    }
    if (mysql_errno(connection) != 0) fail(found.size());
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
