// An open file with the one write transaction that its record sets and scopes share.
#pragma once

#include "store/engine.h"
#include "store/short_texts.h"
#include "store/write_counters.h"

#include <memory>
#include <string>
#include <vector>

namespace store {

struct Database::Session {
    Session(QString file, std::unique_ptr<Engine> opened);

    Engine& engine() const;  // throws when closed
    bool is_open() const { return engine_ != nullptr; }
    const QString& name() const { return name_; }
    ShortTexts& texts() { return texts_; }
    std::uint64_t& writes_to(const std::string& table) { return counters_->of(table); }
    void close();  // drops an open transaction

    // An edit joins the transaction of another one or of a scope; the last one to leave commits.
    std::uint64_t join(std::string_view table);
    // To be called ahead of the write of an edit: the engine hears where nothing else stands in the transaction.
    void expect_end();
    void leave(std::uint64_t transaction, std::string_view table);
    // Gives an edit up; what another edit of the transaction has written stays.
    void drop(std::uint64_t transaction, std::string_view table);
    void abandon(std::uint64_t transaction) noexcept;
    // Record sets forget what they have read of the table: now, and again when the transaction ends.
    void has_written(std::uint64_t& counter);

    void begin_scope();
    void commit_scope();
    void abandon_scope() noexcept;

private:
    void begin(std::string_view table, Engine::Wait wait);
    void end(std::string_view table);
    void roll_back() noexcept;
    void tell_readers() noexcept;

    QString name_;
    std::unique_ptr<Engine> engine_;
    ShortTexts texts_;  // that were asked for
    std::shared_ptr<WriteCounters> counters_;
    std::uint64_t transaction_ = 0;  // a number for each; an edit of a former one has lost its lock
    int edits_ = 0;
    bool scoped_ = false;
    std::vector<std::uint64_t*> written_;
};

// The lock of one edit: dropped unless done.
class EditLock {
public:
    EditLock(std::shared_ptr<Database::Session> session, std::string table);
    ~EditLock();
    EditLock(EditLock&& other) noexcept;
    EditLock& operator=(EditLock&&) = delete;

    void done();
    void cancel();

private:
    std::shared_ptr<Database::Session> session_;  // none when done
    std::string table_;
    std::uint64_t transaction_;
};

}  // namespace store
