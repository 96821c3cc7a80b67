// Streams of bytes that are read where they lie, alone in a file or, by name, in a compound file of an old office
// program.
#pragma once

#include <QString>

#include <memory>
#include <optional>

struct _GsfInput;
struct _GsfInfile;

namespace workbook {

class ByteStream {
public:
    explicit ByteStream(const QString& native_file);  // throws damaged() where it cannot be opened

    qsizetype size() const;
    // Throws damaged() beyond the end and for a compound file that is cut.
    void read(qsizetype at, char* to, qsizetype bytes);

private:
    friend class CompoundFile;
    struct Close {
        void operator()(_GsfInput* input) const;
    };
    explicit ByteStream(_GsfInput* input) : input_(input) {}

    std::unique_ptr<_GsfInput, Close> input_;
};

class CompoundFile {
public:
    explicit CompoundFile(const QString& native_file);  // throws damaged()

    std::optional<ByteStream> stream(const char* name) const;  // none without such a stream

private:
    struct Close {
        void operator()(_GsfInfile* file) const;
    };
    qsizetype size_;
    std::unique_ptr<_GsfInfile, Close> file_;
};

}  // namespace workbook
