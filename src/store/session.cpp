#include "store/session.h"

#include "store/messages.h"

#include <algorithm>
#include <utility>

namespace store {

std::shared_ptr<WriteCounters> write_counters(const std::string& identity) {
    static std::unordered_map<std::string, std::weak_ptr<WriteCounters>> files;
    std::shared_ptr<WriteCounters> counters = files[identity].lock();
    if (!counters) {
        std::erase_if(files, [](const auto& file) { return file.second.expired(); });
        counters = std::make_shared<WriteCounters>();
        files[identity] = counters;
    }
    return counters;
}

Database::Session::Session(QString file, std::unique_ptr<Engine> opened)
    : name_(std::move(file)), engine_(std::move(opened)), counters_(write_counters(engine_->identity())) {}

Engine& Database::Session::engine() const {
    if (!engine_) throw messages::error(u"Veritabanı kapatılmış", name_);
    return *engine_;
}

void Database::Session::close() {
    roll_back();
    engine_.reset();
}

void Database::Session::begin(std::string_view table, Engine::Wait wait) {
    engine().begin(table, wait);
    ++transaction_;
}

std::uint64_t Database::Session::join(std::string_view table) {
    if (edits_ == 0 && !scoped_) {
        begin(table, Engine::Wait::with_next);
    } else if (!engine().in_transaction()) {
        throw messages::error(u"Yazma yarıda kesilmiş, sürdürülemez", name_, table);
    }
    ++edits_;
    return transaction_;
}

void Database::Session::expect_end() {
    if (edits_ == 1 && !scoped_) engine().expect_commit();
}

void Database::Session::leave(std::uint64_t transaction, std::string_view table) {
    if (transaction == transaction_ && !engine().in_transaction()) roll_back();
    if (transaction != transaction_) throw messages::error(u"Yazma yarıda kesilmiş, kayıt yazılmadı", name_, table);
    --edits_;
    if (edits_ == 0 && !scoped_) end(table);
}

void Database::Session::drop(std::uint64_t transaction, std::string_view table) {
    if (transaction != transaction_ || edits_ == 0) return;
    --edits_;
    if (edits_ == 0 && !scoped_) end(table);
}

void Database::Session::abandon(std::uint64_t transaction) noexcept {
    try {
        drop(transaction, {});
    } catch (...) {
        roll_back();
    }
}

void Database::Session::has_written(std::uint64_t& counter) {
    ++counter;
    if (std::ranges::find(written_, &counter) == written_.end()) written_.push_back(&counter);
}

// Commits, or rolls back where nothing was written.
void Database::Session::end(std::string_view table) {
    if (written_.empty()) return roll_back();
    try {
        engine().commit(table);
    } catch (...) {
        roll_back();
        throw;
    }
    tell_readers();
}

void Database::Session::roll_back() noexcept {
    if (engine_) engine_->rollback();
    edits_ = 0;
    scoped_ = false;
    ++transaction_;
    tell_readers();
}

void Database::Session::tell_readers() noexcept {
    for (std::uint64_t* counter : written_) ++*counter;
    written_.clear();
}

void Database::Session::begin_scope() {
    if (scoped_ || edits_ > 0) throw messages::error(u"Açık bir yazma varken yeni bir toplu yazma başlatılamaz", name_);
    begin({}, Engine::Wait::now);
    scoped_ = true;
}

void Database::Session::commit_scope() {
    if (!scoped_ || !engine().in_transaction())
        throw messages::error(u"Yazma yarıda kesilmiş, kayıtlar yazılmadı", name_);
    if (edits_ > 0) throw messages::error(u"Bitmemiş bir kayıt değişikliği varken toplu yazma bitirilemez", name_);
    scoped_ = false;
    end({});
}

void Database::Session::abandon_scope() noexcept {
    if (scoped_) roll_back();
}

EditLock::EditLock(std::shared_ptr<Database::Session> session, std::string table)
    : session_(std::move(session)), table_(std::move(table)), transaction_(session_->join(table_)) {}

EditLock::EditLock(EditLock&& other) noexcept
    : session_(std::move(other.session_)), table_(std::move(other.table_)), transaction_(other.transaction_) {}

EditLock::~EditLock() {
    if (session_) session_->abandon(transaction_);
}

void EditLock::done() {
    const auto session = std::exchange(session_, nullptr);
    session->leave(transaction_, table_);
}

void EditLock::cancel() {
    const auto session = std::exchange(session_, nullptr);
    session->drop(transaction_, table_);
}

}  // namespace store
