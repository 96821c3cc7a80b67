// Copies of database files, taken while workstations read and write them. Failures throw as record.h says; names are as
// in platform/paths.h.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace store {

class Engine;

class Snapshot {
public:
    Snapshot();
    ~Snapshot();
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

    // Opens `from`, which is to be copied to `to`: a new file, or one of ours that gets the content in one write, for
    // which its other users wait.
    void add(const QString& from, const QString& to);

    // Writes the copies. No workstation is held up for longer than a moment. True when all copies are of one and the
    // same moment; false when the office never paused for long enough: each is of a moment of its own then, in the
    // order in which they were added.
    bool take();

private:
    struct File {
        std::unique_ptr<Engine> source;
        QString to;
        std::int64_t version;  // of the source when it was last copied
    };
    std::vector<File> files_;
};

// Adds the rows of a table of `from` to that of the same name and fields in `to`, whose former rows go with
// `empty_first`: one write in few trips, for a file that lies on a server.
void add_rows(const QString& from, const QString& to, const std::string& table, bool empty_first);

// What is wrong with the structure of a file, in the engine's own words and only the first of many; empty for a sound
// one.
QStringList damages(const QString& path);

// Renames a damaged file, with what the engine keeps beside it, to "X.bozuk", in place of a former one.
void set_aside(const QString& path);

}  // namespace store
