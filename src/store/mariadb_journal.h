// What the open transaction has written, so that it can be written once more where the server has undone it, and which
// versions of rows it goes by.
#pragma once

#include "store/batch.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace store {

class MariadbJournal {
public:
    struct Write {
        std::string table;
        std::string statement;  // fails or finds nothing where the row is no longer of the known version
        std::optional<RowId> row;
    };

    void add(Write write) {
        size_ += write.statement.size();
        if (size_ > most_bytes) writes_.clear(), is_whole_ = false;
        if (is_whole_) writes_.push_back(std::move(write));
        ++count_;
    }
    // Without a failed one.
    void drop_last() {
        if (is_whole_) writes_.pop_back();
        --count_;
    }
    void clear() { *this = MariadbJournal(); }

    const std::vector<Write>& writes() const { return writes_; }
    std::size_t count() const { return count_; }
    bool can_repeat() const { return is_whole_ && !repeated_; }
    void set_repeated() { repeated_ = true; }

    // What the row was when it was first read is what the write goes by.
    void know(const std::string& table, RowId row, std::int64_t version) {
        versions_.try_emplace({table, row}, version);
    }
    void raise(const std::string& table, RowId row) {
        if (const auto known = versions_.find({table, row}); known != versions_.end()) ++known->second;
    }
    std::optional<std::int64_t> version(const std::string& table, RowId row) const {
        const auto known = versions_.find({table, row});
        return known == versions_.end() ? std::nullopt : std::optional(known->second);
    }

    std::optional<Write> held;            // to be sent with the commit
    std::int64_t token = 0;               // by which the commit is found again
    std::size_t commit_place = SIZE_MAX;  // of the commit among the statements sent with it

private:
    static constexpr std::size_t most_bytes = 8 << 20;
    std::vector<Write> writes_;
    std::size_t count_ = 0;
    std::size_t size_ = 0;
    bool is_whole_ = true;
    bool repeated_ = false;
    std::map<std::pair<std::string, RowId>, std::int64_t> versions_;
};

}  // namespace store
