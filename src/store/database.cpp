#include "platform/paths.h"
#include "store/cursor.h"
#include "store/messages.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <thread>
#include <utility>

namespace store {

namespace {

// What a busy writer grants the other workstations: held for less than this, then free for that.
constexpr std::int64_t longest_hold_ms = 400;
constexpr auto pause_between = std::chrono::milliseconds(2);

std::int64_t now_ms() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

Database::Session& require_open(const std::shared_ptr<Database::Session>& session) {
    if (!session) throw messages::error(QStringLiteral("Veritabanı açılmamış ya da kapatılmış."));
    session->engine();
    return *session;
}

}  // namespace

Database::Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&& other) noexcept {
    if (session_ && this != &other) session_->close();
    session_ = std::move(other.session_);
    return *this;
}
Database::~Database() {
    if (session_) session_->close();
}

bool Database::is_open() const {
    return session_ != nullptr;
}

void Database::Close() {
    require_open(session_);
    std::exchange(session_, nullptr)->close();
}

Recordset Database::OpenRecordset(std::string_view table) {
    require_open(session_);
    return Recordset(std::make_unique<Recordset::Cursor>(session_, table));
}

void Database::CreateTable(const TableDef& table) {
    Engine& engine = require_open(session_).engine();
    EditLock lock(session_, table.name);
    engine.create_table(table);
    session_->has_written(session_->writes_to(table.name));
    lock.done();
}

std::vector<TableDef> Database::tables() const {
    return require_open(session_).engine().tables();
}

std::string Database::stamp() const {
    return require_open(session_).engine().stamp();
}

Database OpenDatabase(const QString& path) {
    Database database;
    database.session_ = std::make_shared<Database::Session>(path, open_engine(path, paths::native(path)));
    return database;
}

Database CreateDatabase(const QString& path) {
    Database database;
    const QString native = paths::native(path);
    database.session_ = std::make_shared<Database::Session>(path, create_engine(path, native));
    return database;
}

void create_file(const QString& path, const std::vector<TableDef>& tables) {
    const QString native = paths::native(path);
    if (QFile::exists(native)) throw messages::error(u"Dosya zaten var", path);
    const QString beside = native + QStringLiteral(".yeni-") + QString::number(QCoreApplication::applicationPid());
    QFile::remove(beside);
    try {
        create_engine_file(path, beside, tables);
    } catch (...) {
        QFile::remove(beside);
        throw;
    }
    if (QFile::rename(beside, native)) return;
    QFile::remove(beside);
    throw messages::error(QFile::exists(native) ? u"Dosya zaten var" : u"Dosya oluşturulamadı", path);
}

WriteScope::WriteScope(Database& database) : session_(database.session_) {
    require_open(session_).begin_scope();
    since_ms_ = now_ms();
}

WriteScope::~WriteScope() {
    if (session_) session_->abandon_scope();
}

void WriteScope::commit() {
    const auto session = std::exchange(session_, nullptr);
    if (!session) throw messages::error(QStringLiteral("Toplu yazma zaten bitirilmiş."));
    try {
        session->commit_scope();
    } catch (...) {
        session->abandon_scope();
        throw;
    }
}

void WriteScope::pause_if_due() {
    Database::Session& session = require_open(session_);
    if (now_ms() - since_ms_ < longest_hold_ms) return;
    session.commit_scope();
    std::this_thread::sleep_for(pause_between);
    session.begin_scope();
    since_ms_ = now_ms();
}

}  // namespace store
