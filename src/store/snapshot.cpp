#include "store/snapshot.h"

#include "platform/paths.h"
#include "store/engine.h"
#include "store/engine_copy.h"

namespace store {

namespace {

constexpr int most_rounds = 30;
constexpr std::int64_t never_copied = -1;

}  // namespace

Snapshot::Snapshot() = default;
Snapshot::~Snapshot() = default;

void Snapshot::add(const QString& from, const QString& to) {
    files_.push_back({open_engine(from, paths::native(from)), to, never_copied});
}

// A round in which no file has changed since it was copied proves that all copies are of the round's beginning.
bool Snapshot::take() {
    for (int round = 0; round < most_rounds; ++round) {
        bool changed = false;
        for (File& file : files_) {
            const std::int64_t version = file.source->version();
            if (version == file.version) continue;
            changed = true;
            file.source->copy_to(file.to, paths::native(file.to));
            file.version = version;
        }
        if (!changed) return true;
    }
    return false;
}

void add_rows(const QString& from, const QString& to, const std::string& table, bool empty_first) {
    const auto source = open_engine(from, paths::native(from)), target = open_engine(to, paths::native(to));
    add_rows(*source, *target, table, empty_first);
}

QStringList damages(const QString& path) {
    return open_engine(path, paths::native(path))->damages();
}

void set_aside(const QString& path) {
    set_engine_file_aside(path, paths::native(path));
}

}  // namespace store
