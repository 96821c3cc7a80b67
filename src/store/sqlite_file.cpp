// Which files are ours: the header of a database file, and how a new one begins.
#include "store/folder_locks.h"
#include "store/messages.h"
#include "store/sqlite_engine.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstring>

namespace store {

namespace {

constexpr int application_id = 0x4B757276;  // "Kurv"
constexpr int format_version = 1;

using Header = std::array<unsigned char, 100>;

std::uint32_t big_endian(const Header& header, std::size_t at) {
    return std::uint32_t{header[at]} << 24 | std::uint32_t{header[at + 1]} << 16 | std::uint32_t{header[at + 2]} << 8 |
           header[at + 3];
}

bool begins_with(const Header& header, std::size_t at, std::string_view text) {
    return std::memcmp(header.data() + at, text.data(), text.size()) == 0;
}

sqlite3_file* file_of(sqlite3* connection) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file && file->pMethods ? file : nullptr;
}

// Read through the connection: opening and closing the file beside it would drop the locks that this process holds.
Header read_header(sqlite3* connection, const QString& name) {
    sqlite3_file* const file = file_of(connection);
    Header header{};
    sqlite3_int64 size = 0;
    if (!file || file->pMethods->xFileSize(file, &size) != SQLITE_OK) throw messages::error(u"Dosya okunamıyor", name);
    if (size == 0) throw messages::error(u"Dosya boş, bir veritabanı değil", name);
    const int code = file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0);
    if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ) throw messages::error(u"Dosya okunamıyor", name);
    return header;
}

bool is_of_older_engine(const Header& header) {
    const bool marked = header[0] == 0 && header[1] == 1 && header[2] == 0 && header[3] == 0;
    return marked && (begins_with(header, 4, "Standard Jet DB") || begins_with(header, 4, "Standard ACE DB"));
}

// Whoever may write in the folder may write its files: they are shared by the office.
void share_as_folder(const QString& native_path) {
    constexpr QFile::Permissions shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup |
                                          QFile::ReadOther | QFile::WriteOther;
    const QFile::Permissions folder = QFileInfo(QFileInfo(native_path).absolutePath()).permissions();
    QFile::setPermissions(native_path, (folder & shared) | QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace

void SqliteEngine::check_header() {
    const Header header = read_header(connection_.get(), name_);
    if (is_of_older_engine(header))
        throw messages::error(
            u"Dosya eski veritabanı biçiminde (Standard Jet DB); önce dönüştürme aracıyla (kurvo-arac) dönüştürün",
            name_);
    if (!begins_with(header, 0, std::string_view("SQLite format 3\0", 16)))
        throw messages::error(u"Dosya bir veritabanı olarak tanınmıyor; şifreli ya da bozuk olabilir", name_);
    if (big_endian(header, 68) != application_id) throw messages::error(u"Dosya başka bir programın veritabanı", name_);
    if (big_endian(header, 60) > format_version)
        throw messages::error(u"Dosya programın daha yeni bir sürümüyle yapılmış", name_);
    // A write-ahead log is unsafe on a shared folder.
    const bool has_log = header[18] == 2 || header[19] == 2;
    guarded({}, [&] {
        if (has_log) execute("PRAGMA journal_mode=DELETE");
        execute("PRAGMA synchronous=FULL");
    });
}

// The counter that every commit raises. A file that was put in place of another one may have the same number, but
// hardly the same time and size. The statement keeps writers out, and first plays back what a cut left half written.
std::string SqliteEngine::stamp() {
    return guarded({}, [&] {
        SqliteStatement& reading = statement("SELECT COUNT(*) FROM sqlite_master");
        const SqliteReset reset(reading);
        reading.step();
        const std::uint32_t commits = big_endian(read_header(connection_.get(), name_), 24);
        const QFileInfo file(QString::fromStdString(identity_));
        return identity_ + '|' + std::to_string(commits) + '|' + std::to_string(file.size()) + '|' +
               std::to_string(file.lastModified().toMSecsSinceEpoch());
    });
}

SqliteEngine::SqliteEngine(QString name, const QString& native_path, New) : name_(std::move(name)) {
    connect(native_path);
    guarded({}, [&] {
        execute("PRAGMA journal_mode=MEMORY");
        execute("PRAGMA synchronous=OFF");
        execute("PRAGMA application_id=" + std::to_string(application_id));
        execute("PRAGMA user_version=" + std::to_string(format_version));
    });
}

std::unique_ptr<SqliteEngine> SqliteEngine::create(const QString& name, const QString& native_path) {
    QFile file(native_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw messages::error(file.exists() ? u"Dosya zaten var" : u"Dosya oluşturulamıyor", name);
    file.close();
    try {
        share_as_folder(native_path);
        return std::unique_ptr<SqliteEngine>(new SqliteEngine(name, native_path, New{}));
    } catch (...) {
        QFile::remove(native_path);
        throw;
    }
}

void SqliteEngine::flush() {
    sqlite3_file* const file = file_of(connection_.get());
    if (!file || file->pMethods->xSync(file, SQLITE_SYNC_FULL) != SQLITE_OK) fail(SQLITE_IOERR, {});
}

std::unique_ptr<Engine> create_engine(const QString& name, const QString& native_path) {
    require_locks(QFileInfo(native_path).absolutePath(), name);
    return SqliteEngine::create(name, native_path);
}

void create_engine_file(const QString& name, const QString& native_path, const std::vector<TableDef>& tables) {
    const auto engine = SqliteEngine::create(name, native_path);
    engine->begin({}, Engine::Wait::now);
    for (const TableDef& table : tables) engine->create_table(table);
    engine->commit({});
    engine->flush();
}

}  // namespace store
