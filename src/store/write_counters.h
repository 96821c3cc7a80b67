// Counts this process's writes to each table of a file, so that record sets forget what they have read ahead.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

namespace store {

class WriteCounters {
public:
    // The same counter at the same place for as long as the object lives.
    std::uint64_t& of(const std::string& table) { return counts_[table]; }

private:
    std::unordered_map<std::string, std::uint64_t> counts_;
};

// Shared by all who have the file of this identity open.
std::shared_ptr<WriteCounters> write_counters(const std::string& identity);

}  // namespace store
