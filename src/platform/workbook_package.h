// The zip package of .xlsx and .ods, read so that no file can ask for more than a workstation should give.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringDecoder>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

struct zip;
struct zip_file;

namespace workbook {

// A text part while it is unpacked: a window over its UTF-8, which slides forward.
class Part {
public:
    // What is unpacked and not passed over yet. Good until the next call of more().
    std::string_view window() const { return {bytes_.data() + begin_, end_ - begin_}; }
    // Unpacks more behind the window; false at the end of the part. Throws damaged(), and too_large() for an endless
    // part or window.
    bool more();
    // What has been passed over stays readable until the next call of more().
    void pass(std::size_t bytes) { begin_ += bytes; }

private:
    friend class Package;
    struct Close {
        void operator()(zip_file* file) const;
    };
    using File = std::unique_ptr<zip_file, Close>;

    explicit Part(File file);
    void make_room();
    std::size_t unpack(char* to, std::size_t most);
    void append(QByteArrayView unpacked);

    File file_;
    std::optional<QStringDecoder> decoder_;  // of a part in UTF-16
    std::vector<char> bytes_;
    std::size_t begin_ = 0, end_ = 0;
    std::int64_t total_ = 0;
};

// Names of parts are found without regard to case.
class Package {
public:
    explicit Package(const QByteArray& file);  // must outlive the package; throws damaged()

    bool has(const QString& part) const;
    // Throws damaged() where the part is missing, encrypted() where it asks for a password.
    Part open(const QString& part);

private:
    struct Close {
        void operator()(zip* archive) const;
    };
    std::unique_ptr<zip, Close> archive_;
};

}  // namespace workbook
