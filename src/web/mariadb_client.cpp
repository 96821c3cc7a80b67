#include "web/mariadb_client.h"

#include "web/latin5.h"

#include <errmsg.h>
#include <mysql.h>
#include <mysqld_error.h>

#include <cstring>
#include <new>
#include <stdexcept>
#include <string>

namespace mariadb {

namespace {

constexpr unsigned port = 3306;

struct CloseStatement {
    void operator()(MYSQL_STMT* statement) const { mysql_stmt_close(statement); }
};
using Statement = std::unique_ptr<MYSQL_STMT, CloseStatement>;

QString reason(unsigned code) {
    switch (code) {
        case CR_CONNECTION_ERROR:
        case CR_CONN_HOST_ERROR:
        case CR_UNKNOWN_HOST:
            return QStringLiteral("Sunucuya ulaşılamadı");
        case CR_SERVER_GONE_ERROR:
        case CR_SERVER_LOST:
            return QStringLiteral("Sunucu süresinde yanıt vermedi ya da bağlantı koptu");
        case ER_ACCESS_DENIED_ERROR:
        case ER_DBACCESS_DENIED_ERROR:
            return QStringLiteral("Sunucu kullanıcıyı ya da parolasını kabul etmedi");
        case ER_BAD_DB_ERROR:
            return QStringLiteral("Sunucuda bu adda bir veritabanı yok");
        case ER_NO_SUCH_TABLE:
            return QStringLiteral("Sunucuda tablo yok");
        default:
            return QStringLiteral("Sunucu işlemi yapamadı");
    }
}

// The server's own words stand behind ours, for whoever looks after it.
[[noreturn]] void fail(const QString& host, unsigned code, const char* words) {
    throw std::runtime_error(QStringLiteral("%1: %2 (%3: %4)")
                                 .arg(reason(code), host, QString::number(code), latin5::decode(words))
                                 .toStdString());
}

// The texts must outlive the bindings.
std::vector<MYSQL_BIND> bindings_of(std::vector<std::string>& texts) {
    std::vector<MYSQL_BIND> bindings(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        std::memset(&bindings[i], 0, sizeof bindings[i]);
        bindings[i].buffer_type = MYSQL_TYPE_STRING;
        bindings[i].buffer = texts[i].data();
        bindings[i].buffer_length = texts[i].size();
    }
    return bindings;
}

}  // namespace

void Connection::Close::operator()(st_mysql* connection) const {
    mysql_close(connection);
}

Connection::Connection(const Server& server, const Limits& limits)
    : host_(server.host), connection_(mysql_init(nullptr)) {
    if (!connection_) throw std::bad_alloc();
    set_options(limits);
    const auto bytes = [](const QString& text) { return latin5::encode(text); };
    const MYSQL* connected = mysql_real_connect(connection_.get(), bytes(server.host), bytes(server.user),
                                                bytes(server.password), bytes(server.database), port, nullptr, 0);
    if (connected == nullptr) fail(host_, mysql_errno(connection_.get()), mysql_error(connection_.get()));
}

// Without the protocol the client would look for a local socket instead of the port where the host is "localhost". No
// server may ask for the workstation's files.
void Connection::set_options(const Limits& limits) {
    const auto number = [this](mysql_option option, unsigned value) {
        mysql_options(connection_.get(), option, &value);
    };
    const auto seconds = [&](mysql_option option, std::chrono::seconds limit) {
        number(option, static_cast<unsigned>(limit.count()));
    };
    mysql_options(connection_.get(), MYSQL_SET_CHARSET_NAME, "latin5");
    number(MYSQL_OPT_PROTOCOL, MYSQL_PROTOCOL_TCP);
    number(MYSQL_OPT_LOCAL_INFILE, 0);
    seconds(MYSQL_OPT_CONNECT_TIMEOUT, limits.connecting);
    seconds(MYSQL_OPT_READ_TIMEOUT, limits.reading);
    seconds(MYSQL_OPT_WRITE_TIMEOUT, limits.writing);
}

void Connection::run(const char* statement) {
    if (mysql_query(connection_.get(), statement) != 0)
        fail(host_, mysql_errno(connection_.get()), mysql_error(connection_.get()));
}

std::uint64_t Connection::run(const char* statement, const std::vector<QString>& values) {
    const Statement prepared(mysql_stmt_init(connection_.get()));
    if (!prepared) throw std::bad_alloc();
    std::vector<std::string> texts;
    for (const QString& value : values) texts.push_back(latin5::encode(value).toStdString());
    std::vector<MYSQL_BIND> bindings = bindings_of(texts);
    const bool failed = mysql_stmt_prepare(prepared.get(), statement, std::strlen(statement)) != 0 ||
                        mysql_stmt_bind_param(prepared.get(), bindings.data()) != 0 ||
                        mysql_stmt_execute(prepared.get()) != 0 || mysql_stmt_store_result(prepared.get()) != 0;
    if (failed) fail(host_, mysql_stmt_errno(prepared.get()), mysql_stmt_error(prepared.get()));
    return mysql_stmt_field_count(prepared.get()) == 0 ? 0 : mysql_stmt_num_rows(prepared.get());
}

}  // namespace mariadb
