// A connection to a MariaDB or MySQL server whose texts travel in the Turkish single-byte set.
#pragma once

#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>

struct st_mysql;

namespace mariadb {

struct Server {
    QString host, database, user, password;
};

// How long a server that does not answer may hold the program up.
struct Limits {
    std::chrono::seconds connecting{5}, reading{10}, writing{10};
};

// Whatever fails throws std::runtime_error with a Turkish text that names the host and never the password. A statement
// that has failed leaves nothing behind: the server undoes what was not committed once the connection is gone.
class Connection {
public:
    // Over the network, also to this machine, at port 3306.
    explicit Connection(const Server& server, const Limits& limits = {});

    // Runs a statement that holds all it needs.
    void run(const char* statement);
    // Runs a statement with a "?" for each of `values`, which are bound as texts. Returns how many rows it has found,
    // 0 for a statement that looks for none.
    std::uint64_t run(const char* statement, const std::vector<QString>& values);

private:
    struct Close {
        void operator()(st_mysql* connection) const;
    };

    void set_options(const Limits& limits);

    QString host_;
    std::unique_ptr<st_mysql, Close> connection_;
};

}  // namespace mariadb
