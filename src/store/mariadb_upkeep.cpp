// Counts, stamps, copies and checks of a file that lies on a server.
#include "platform/turkish.h"
#include "store/engine_copy.h"
#include "store/mariadb_engine.h"
#include "store/mariadb_sql.h"
#include "store/messages.h"

#include <QFile>

namespace store {

namespace {

// Whether the column behind that of a text holds its sort key.
bool is_key_behind(const MariadbConnection::Row& row, int text) {
    if (row.is_null(text) || row.is_null(text + 1)) return row.is_null(text) && row.is_null(text + 1);
    return turkish::sort_key(messages::name(row.text(text))) == row.text(text + 1);
}

}  // namespace

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
        state_ = State::snapshot;
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
    try {
        forget_old_writers();
    } catch (const MariadbFailure&) {
        connection_.reset();  // the next copy does it
    }
}

// Every start of the program leaves a row in the list of writers; a back-up is taken often enough to fold old ones into
// the row of no writer.
void MariadbEngine::forget_old_writers() {
    const std::string writers = quoted("_writers"), old = " WHERE writer<>0 AND seen<CURRENT_DATE-INTERVAL 60 DAY";
    connection().run("BEGIN;UPDATE " + writers + " z,(SELECT COALESCE(SUM(commits),0) AS commits FROM " + writers +
                     old + ") o SET z.commits=z.commits+o.commits WHERE z.writer=0");
    connection().run("DELETE FROM " + writers + old);
    connection().run("COMMIT");
}

// Whoever writes to the tables past the program leaves sort keys that are not those of the texts.
QStringList MariadbEngine::false_keys(const TableDef& table) {
    std::string columns;
    int end = 1;
    for (const FieldDef& field : table.fields) {
        if (!mariadb_sql::has_key_column(table, field)) continue;
        columns += ',' + mariadb_sql::quoted_name(field.name) + ',' +
                   mariadb_sql::quoted_name(mariadb_sql::key_column(field.name));
        end += 2;
    }
    if (columns.empty()) return {};
    int rows = 0;
    RowId first = 0;
    const auto look = [&](std::size_t, const MariadbConnection::Row& row) {
        for (int text = 1; text < end; text += 2) {
            if (is_key_behind(row, text)) continue;
            if (rows++ == 0) first = row.whole(0);
            return;
        }
    };
    guarded(table.name,
            [&] { ask("SELECT row_id" + columns + " FROM " + quoted(table.name), look, [&] { rows = 0; }); });
    if (rows == 0) return {};
    return {QStringLiteral("%1: %2 kaydın sıralama anahtarı metninin değil (row_id %3)")
                .arg(messages::name(table.name))
                .arg(rows)
                .arg(first)};
}

QStringList MariadbEngine::damages() {
    constexpr qsizetype most = 10;
    QStringList found;
    if (is_retired()) found << QStringLiteral("yazmaya kapalı; geri taşıma yarıda kalmış (kurvo-arac tasi --geri)");
    std::vector<std::string> names{"_tables", "_writers"};
    for (const TableDef& table : tables()) names.push_back(table.name);
    const auto look = [&](std::size_t, const MariadbConnection::Row& row) {
        const bool is_sound = row.text(2) == "status" && row.text(3) == "OK";
        if (!is_sound && found.size() < most)
            found << messages::name(row.text(0)) + QStringLiteral(": ") + messages::name(row.text(3));
    };
    for (const std::string& name : names) guarded(name, [&] { ask("CHECK TABLE " + quoted(name), look); });
    if (found.isEmpty())
        for (const TableDef& table : tables()) found += false_keys(table);
    return found;
}

}  // namespace store
