// A copy of a whole file beside the work of others, and the check of its structure.
#include "store/engine_copy.h"
#include "store/messages.h"
#include "store/server_place.h"
#include "store/sqlite_engine.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <thread>

namespace store {

namespace {

// As many as even a slow share gives within the half second for which a lock may be held.
constexpr int pages_at_once = 500;
// A write between two pieces makes the copy begin again; after so many beginnings it is taken in one piece.
constexpr int most_beginnings = 20;
constexpr auto rest = std::chrono::milliseconds(2);

struct FinishBackup {
    void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
};

// Copies all pages; a code of SQLite.
int copy_pages(sqlite3_backup* backup) {
    int beginnings = 1;
    int left = 0;
    for (;;) {
        const int code = sqlite3_backup_step(backup, beginnings < most_beginnings ? pages_at_once : -1);
        if (code != SQLITE_OK) return code;
        const int still_left = sqlite3_backup_remaining(backup);
        if (left > 0 && still_left >= left) ++beginnings;
        left = still_left;
        std::this_thread::sleep_for(rest);
    }
}

}  // namespace

std::int64_t SqliteEngine::version() {
    return guarded({}, [&] {
        SqliteStatement& asking = statement("PRAGMA data_version");
        const SqliteReset reset(asking);
        asking.step();
        return asking.whole(0);
    });
}

void SqliteEngine::copy_to(const QString& name, const QString& native_path) {
    if (read_server_place(name, native_path)) return copy_rows(*this, *open_engine(name, native_path));
    if (QFileInfo::exists(native_path)) return copy_into(*std::make_unique<SqliteEngine>(name, native_path));
    const auto made = create(name, native_path);
    try {
        copy_into(*made);
        made->flush();
    } catch (...) {
        made->connection_.reset();
        QFile::remove(native_path);
        throw;
    }
}

void SqliteEngine::copy_into(SqliteEngine& target) {
    sqlite3* const to = target.connection_.get();
    std::unique_ptr<sqlite3_backup, FinishBackup> backup(sqlite3_backup_init(to, "main", connection_.get(), "main"));
    if (!backup) target.fail(sqlite3_extended_errcode(to), {});
    const int code = copy_pages(backup.get());
    backup.reset();
    // The copying is one operation on both files; what it says of the target stands at the target's connection.
    if (code != SQLITE_DONE) (sqlite3_errcode(to) != SQLITE_OK ? target : *this).fail(code, {});
}

QStringList SqliteEngine::damages() {
    constexpr int most = 10;
    QStringList found;
    guarded({}, [&] {
        SqliteStatement& check = statement("PRAGMA integrity_check(" + std::to_string(most) + ")");
        const SqliteReset reset(check);
        while (check.step()) found.append(QString::fromStdString(check.text(0)));
    });
    return found == QStringList("ok") ? QStringList() : found;
}

// A journal that stayed behind would be played into the next file of this name.
void set_engine_file_aside(const QString& name, const QString& native_path) {
    for (const QString& file : {native_path + QStringLiteral("-journal"), native_path}) {
        const QString aside = file + QStringLiteral(".bozuk");
        QFile::remove(aside);
        if (QFile::exists(file) && !QFile::rename(file, aside))
            throw messages::error(u"Bozuk dosyanın adı değiştirilemedi", name);
    }
}

}  // namespace store
