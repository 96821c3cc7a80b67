#include "platform/workbook_package.h"

#include "platform/workbook_readers.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <utility>

namespace workbook {

namespace {

// Small, since the same memory serves the whole part.
constexpr std::size_t usual_window = 64 * 1024;
constexpr std::size_t longest_window = 512 * 1024;  // half of it is more than the longest text of a cell takes

}  // namespace

void Part::Close::operator()(zip_file* file) const {
    zip_fclose(file);
}

// The first letter of every part shows in which encoding it is.
Part::Part(File file) : file_(std::move(file)), bytes_(usual_window) {
    std::array<char, 4> head;
    const QByteArrayView first(head.data(), static_cast<qsizetype>(unpack(head.data(), head.size())));
    const auto encoding = QStringConverter::encodingForData(first, u'<');
    if (encoding && *encoding != QStringConverter::Utf8) decoder_.emplace(*encoding);
    append(first);
}

bool Part::more() {
    make_room();
    const std::size_t room = bytes_.size() - end_;
    if (!decoder_) {
        const std::size_t unpacked = unpack(bytes_.data() + end_, room);
        end_ += unpacked;
        return unpacked > 0;
    }
    QByteArray utf16(static_cast<qsizetype>(room / 2), Qt::Uninitialized);
    utf16.truncate(static_cast<qsizetype>(unpack(utf16.data(), room / 2)));
    append(utf16);
    return !utf16.isEmpty();
}

void Part::make_room() {
    std::copy(bytes_.data() + begin_, bytes_.data() + end_, bytes_.data());
    end_ -= std::exchange(begin_, 0);
    if (end_ < bytes_.size() / 2) return;
    if (bytes_.size() >= longest_window) throw too_large();
    bytes_.resize(bytes_.size() * 2);
}

std::size_t Part::unpack(char* to, std::size_t most) {
    const zip_int64_t got = zip_fread(file_.get(), to, most);
    if (got < 0) throw damaged();
    total_ += got;
    if (total_ > longest_part) throw too_large();
    return static_cast<std::size_t>(got);
}

// There is room: three bytes of UTF-8 at most stand for two of UTF-16.
void Part::append(QByteArrayView unpacked) {
    const QByteArray utf8 = decoder_ ? QString(decoder_->decode(unpacked)).toUtf8() : unpacked.toByteArray();
    std::ranges::copy(utf8, bytes_.data() + end_);
    end_ += static_cast<std::size_t>(utf8.size());
}

bool is_package(const QByteArray& file) {
    return file.startsWith("PK\x03\x04") || file.startsWith("PK\x05\x06");
}

void Package::Close::operator()(zip* archive) const {
    zip_discard(archive);
}

Package::Package(const QByteArray& file) {
    zip_source_t* source =
        zip_source_buffer_create(file.constData(), static_cast<zip_uint64_t>(file.size()), 0, nullptr);
    if (source == nullptr) throw damaged();
    archive_.reset(zip_open_from_source(source, ZIP_RDONLY, nullptr));
    if (archive_) return;
    zip_source_free(source);
    throw damaged();
}

bool Package::has(const QString& part) const {
    return zip_name_locate(archive_.get(), part.toUtf8().constData(), ZIP_FL_NOCASE) >= 0;
}

Part Package::open(const QString& part) {
    const zip_int64_t index = zip_name_locate(archive_.get(), part.toUtf8().constData(), ZIP_FL_NOCASE);
    zip_stat_t about;
    if (index < 0 || zip_stat_index(archive_.get(), static_cast<zip_uint64_t>(index), 0, &about) != 0) throw damaged();
    if ((about.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && about.encryption_method != ZIP_EM_NONE) throw encrypted();
    Part::File file(zip_fopen_index(archive_.get(), static_cast<zip_uint64_t>(index), 0));
    if (!file) throw damaged();
    return Part(std::move(file));
}

}  // namespace workbook
