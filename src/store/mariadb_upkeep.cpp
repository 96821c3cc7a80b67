// Counts, stamps, copies and checks of a file that lies on a server.
#include "store/engine_copy.h"
#include "store/mariadb_engine.h"
#include "store/messages.h"

#include <QFile>

namespace store {

std::int64_t MariadbEngine::count(const TableInfo& table) {
    const std::string& name = table.definition().name;
    std::int64_t rows = 0;
    guarded(name, [&] {
        ask("SELECT COUNT(*) FROM " + quoted(name),
            [&](std::size_t, const MariadbConnection::Row& row) { rows = row.whole(0); });
    });
    return rows;
}

std::int64_t MariadbEngine::version() {
    std::int64_t commits = 0;
    guarded({}, [&] {
        ask("SELECT CAST(SUM(commits) AS SIGNED) FROM " + quoted("_writers"),
            [&](std::size_t, const MariadbConnection::Row& row) { commits = row.whole(0); });
    });
    return commits;
}

// Tables that were made anew under the same names have another token in the row of no writer.
std::string MariadbEngine::stamp() {
    std::string text = identity_;
    guarded({}, [&] {
        ask(
            "SELECT MAX(IF(writer=0,token,0)),CAST(SUM(commits) AS SIGNED) FROM " + quoted("_writers"),
            [&](std::size_t, const MariadbConnection::Row& row) {
                text += '|' + std::to_string(row.whole(0)) + '|' + std::to_string(row.whole(1));
            },
            [&] { text = identity_; });
    });
    return text;
}

// What is read between the beginning and the end is of the beginning's moment; nobody waits for it.
void MariadbEngine::copy_to(const QString& name, const QString& native_path) {
    const bool is_new = !QFile::exists(native_path);
    guarded({}, [&] {
        ask("SET TRANSACTION ISOLATION LEVEL REPEATABLE READ;START TRANSACTION WITH CONSISTENT SNAPSHOT",
            [](std::size_t, const MariadbConnection::Row&) {});
        state_ = State::open;
    });
    try {
        if (is_new) create_engine_file(name, native_path, tables());
        copy_rows(*this, *open_engine(name, native_path));
    } catch (...) {
        rollback();
        if (is_new) QFile::remove(native_path);
        throw;
    }
    rollback();
}

QStringList MariadbEngine::damages() {
    constexpr qsizetype most = 10;
    QStringList found;
    std::string all = quoted("_tables") + ',' + quoted("_writers");
    for (const TableDef& table : tables()) all += ',' + quoted(table.name);
    guarded({}, [&] {
        ask("CHECK TABLE " + all, [&](std::size_t, const MariadbConnection::Row& row) {
            const bool is_sound = row.text(2) == "status" && row.text(3) == "OK";
            if (!is_sound && found.size() < most)
                found << messages::name(row.text(0)) + QStringLiteral(": ") + messages::name(row.text(3));
        });
    });
    return found;
}

}  // namespace store
