// One connection to a MariaDB server, and those that this process keeps open for the next file.
#pragma once

#include "store/server_place.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct st_mysql;

namespace store {

// What the client or the server says of a failure; the words never hold the password.
struct MariadbFailure {
    unsigned code;
    std::string words;
    std::size_t done = 0;  // statements of the call that were answered before

    // Nobody is there any more, or a node of a cluster that has lost the others: a new connection may help.
    bool is_lost() const;
    // Another node of the cluster wrote the same row first, and the server has undone the transaction; or a write has
    // found that it had, or that the row is no longer of the version it knew.
    bool is_conflict() const;
    // Another host would say the same.
    bool is_refusal() const;
};

class MariadbConnection {
public:
    // The columns of a row as text, or null pointers, valid within the call only.
    struct Row {
        const char* const* columns;
        const unsigned long* sizes;

        bool is_null(int column) const { return columns[column] == nullptr; }
        std::string_view text(int column) const { return {columns[column], sizes[column]}; }
        std::int64_t whole(int column) const;  // 0 for Null
    };
    // The place of the statement among those of one call, and a row of it.
    using TakeRow = std::function<void(std::size_t, const Row&)>;

    // Tries the hosts in turn, 5 s each, beginning with the one that answered last. Throws MariadbFailure.
    explicit MariadbConnection(const ServerPlace& place);

    // Sends the statements, separated by ";", in one trip and waits for all answers. Those behind one that fails are
    // not run. Returns the rows that each has found or written. Throws MariadbFailure.
    std::vector<std::uint64_t> run(std::string_view statements, const TakeRow& take = {});

    // Trips of this process since it began, those of connecting among them.
    static std::int64_t round_trips();

private:
    struct Close {
        void operator()(st_mysql* connection) const;
    };

    void connect(const ServerPlace& place, const QString& host);
    void join_cluster();
    [[noreturn]] void fail(std::size_t done = 0) const;

    std::unique_ptr<st_mysql, Close> connection_;
    std::size_t most_bytes_ = SIZE_MAX;  // that the server takes at once
};

// A kept connection, or a new one. A kept one may be dead, which its first use shows.
std::unique_ptr<MariadbConnection> take_connection(const ServerPlace& place);
// Keeps a connection on which no transaction is open.
void keep_connection(const ServerPlace& place, std::unique_ptr<MariadbConnection> connection);

}  // namespace store
