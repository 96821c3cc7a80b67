#include "store/relocation.h"

#include "platform/paths.h"
#include "store/engine_write.h"
#include "store/mariadb_engine.h"
#include "store/messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <filesystem>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace store {

namespace {

namespace fs = std::filesystem;

const QString database_aside = QStringLiteral(".yerel");
const QString text_aside = QStringLiteral(".sunucu");
const QString unfinished = QStringLiteral(".tasiniyor");

fs::path path_of(const QString& native) {
    return QFileInfo(native).filesystemFilePath();
}

// What is in the place of a file must be there after a cut of the current too: the other workstations go by it.
void flush_folder_of(const QString& native) {
#ifndef Q_OS_WIN
    const int folder = open(QFile::encodeName(QFileInfo(native).path()).constData(), O_RDONLY | O_CLOEXEC);
    if (folder < 0) return;
    fsync(folder);
    close(folder);
#else
    Q_UNUSED(native)
#endif
}

// In one step: at every moment one of the two is found under the name.
void replace(const QString& name, const QString& native, const QString& by) {
    std::error_code failure;
    fs::rename(path_of(by), path_of(native), failure);
    if (failure) throw messages::error(u"Dosya değiştirilemedi; bir program onu açık tutuyor olabilir", name);
    flush_folder_of(native);
}

void write_text(const QString& name, const QString& native, const QByteArray& text, QFile::Permissions permissions) {
    QSaveFile file(native);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        throw messages::error(u"Dosyanın yanına yazılamadı", name);
    QFile::setPermissions(native, permissions);
}

void require_same(const QString& name, Engine& from, Engine& to) {
    if (const QString found = first_difference(from, to); !found.isEmpty())
        throw messages::error(u"Karşı taraf aynı değil, dosya taşınmadı", name + QStringLiteral(" (") + found + u')');
}

[[noreturn]] void refuse_moved(const QString& name) {
    throw messages::error(u"Dosya bu sırada başka bir yere taşındı", name);
}

}  // namespace

std::optional<ServerPlace> server_place_of(const QString& path) {
    return read_server_place(path, paths::native(path));
}

QStringList companions_of(const QString& path) {
    const QString native = paths::native(path);
    QStringList names{native + database_aside, native + text_aside, native + unfinished};
    const auto place = server_place_of(path);
    if (place && !place->password_file.isEmpty()) names << QFileInfo(native).dir().filePath(place->password_file);
    return names;
}

bool has_tables(const QString& path, const ServerPlace& place) {
    return MariadbEngine::exists(path, place);
}

MoveToServer::MoveToServer(const QString& path)
    : path_(path), native_(paths::native(path)), draft_(native_ + unfinished), source_(open_engine(path_, native_)) {
    source_->begin({}, Engine::Wait::now);
    if (server_place_of(path_)) refuse_moved(path_);
}

MoveToServer::~MoveToServer() {
    if (source_) source_->rollback();
}

void MoveToServer::require_free(const ServerPlace& place) {
    if (MariadbEngine::exists(path_, place) && !holds_nothing_else(place))
        throw messages::error(
            QStringLiteral("Sunucuda bu önekle tablolar var (%1); üzerlerine yazılmadı: %2").arg(place.prefix, path_));
}

void MoveToServer::run(const ServerPlace& place, const TableDone& copied) {
    MariadbEngine::drop(path_, place);
    write_text(path_, draft_, server_place_text(place), QFile::permissions(native_));
    if (read_server_place(path_, draft_) != place) {  // a password may begin with a blank
        QFile::remove(draft_);
        throw messages::error(u"Sunucu bilgisi bu dosyaya yazılamıyor; başında ya da sonunda boşluk olabilir", path_);
    }
    MariadbEngine::create(path_, place, source_->tables());
    try {
        fill(place, copied);
        put_text_in_place();
    } catch (...) {
        try {
            MariadbEngine::drop(path_, place);
            QFile::remove(draft_);
        } catch (const std::exception&) {  // then the draft tells the next move whose the tables are
        }
        throw;
    }
}

// A move that was cut has left its draft, and tables that are empty or hold what the file holds.
bool MoveToServer::holds_nothing_else(const ServerPlace& place) {
    const auto draft = QFile::exists(draft_) ? read_server_place(path_, draft_) : std::nullopt;
    if (!draft || draft->prefix != place.prefix || draft->database != place.database) return false;
    MariadbEngine left(path_, place);
    const bool is_empty = std::ranges::all_of(
        left.tables(), [&](const TableDef& table) { return left.count(left.table(table.name)) == 0; });
    return !left.is_retired() && (is_empty || first_difference(*source_, left).isEmpty());
}

void MoveToServer::fill(const ServerPlace& place, const TableDone& copied) {
    MariadbEngine target(path_, place);
    copy_rows(*source_, target, copied);
    require_same(path_, *source_, target);
}

// Another name for the same database, made before its own name goes over to the text; a folder that knows no second
// names gets a copy. No other handle may be opened on the file but by its engine: closing one drops our lock.
void MoveToServer::put_text_in_place() {
    const QString beside = native_ + database_aside + unfinished;
    std::error_code failure;
    fs::remove(path_of(beside), failure);
    fs::create_hard_link(path_of(native_), path_of(beside), failure);
    if (failure) open_engine(path_, native_)->copy_to(path_, beside);
    replace(path_, native_ + database_aside, beside);
    fs::remove(path_of(beside), failure);  // where both were names of one file already
#ifdef Q_OS_WIN
    source_.reset();  // a file that anybody has open cannot be replaced there
#endif
    replace(path_, native_, draft_);
}

MoveToFile::MoveToFile(const QString& path)
    : path_(path),
      native_(paths::native(path)),
      draft_(native_ + unfinished),
      place_(*server_place_of(path)),
      source_(std::make_unique<MariadbEngine>(path, place_)) {
    if (!source_->is_retired()) source_->begin({}, Engine::Wait::now);
    if (server_place_of(path_) != place_) refuse_moved(path_);
}

MoveToFile::~MoveToFile() = default;

void MoveToFile::run(const TableDone& copied) {
    QFile::remove(draft_);
    try {
        create_engine_file(path_, draft_, source_->tables());
        const auto target = open_engine(path_, draft_);
        copy_rows(*source_, *target, copied);
        require_same(path_, *source_, *target);
    } catch (...) {
        QFile::remove(draft_);
        throw;
    }
    const bool was_retired = source_->is_retired();
    try {
        if (!was_retired) end_writing();
        put_database_in_place();
    } catch (...) {
        if (!was_retired && source_->is_retired()) source_->reinstate();
        QFile::remove(draft_);
        throw;
    }
}

// The lock must be given back before it can be taken away for good: whoever writes in between is found by the version.
void MoveToFile::end_writing() {
    const std::int64_t copied = source_->version();
    source_->rollback();
    source_->retire();
    if (source_->version() != copied)
        throw messages::error(u"Taşınırken bir iş istasyonu yazdı, dosya taşınmadı; yineleyin", path_);
}

void MoveToFile::put_database_in_place() {
    const QString beside = native_ + text_aside + unfinished;
    QFile::remove(beside);
    if (!QFile::copy(native_, beside)) throw messages::error(u"Dosyanın yanına yazılamadı", path_);
    replace(path_, native_ + text_aside, beside);
    replace(path_, native_, draft_);
}

bool remove_left_tables(const QString& path) {
    const QString text = paths::native(path) + text_aside;
    const auto place = QFile::exists(text) ? read_server_place(path, text) : std::nullopt;
    if (!place || server_place_of(path)) return false;
    const bool is_there = MariadbEngine::exists(path, *place);
    if (is_there) {
        if (!MariadbEngine(path, *place).is_retired())
            throw messages::error(u"Sunucudaki tablolar kullanılıyor, silinmedi", path);
        MariadbEngine::drop(path, *place);
    }
    QFile::remove(text);
    return is_there;
}

void make_ready(const QString& path, const QString& copy) {
    const auto place = server_place_of(path);
    if (!place) return;
    const auto rows = open_engine(copy, paths::native(copy));
    if (!MariadbEngine::exists(path, *place)) MariadbEngine::create(path, *place, rows->tables());
    MariadbEngine target(path, *place);
    require_room(*rows, target);
    EngineWrite attempt(target);  // somebody who holds the lock, or tables that are not used any more
}

}  // namespace store
