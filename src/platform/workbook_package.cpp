#include "platform/workbook_package.h"

#include "platform/workbook_readers.h"

#include <zip.h>

#include <utility>

namespace workbook {

namespace {

constexpr int deepest_nesting = 200;
constexpr qint64 longest_token = 256 * 1024;  // bytes; more than the longest text of a cell takes

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using File = std::unique_ptr<zip_file_t, CloseFile>;

// A part as a device that only goes forward.
class PartDevice : public QIODevice {
public:
    explicit PartDevice(File file) : file_(std::move(file)) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    bool isSequential() const override { return true; }
    bool failed() const { return failed_; }
    bool over_limit() const { return total_ > longest_part || since_token_ > longest_token; }
    void token_done() { since_token_ = 0; }

protected:
    qint64 readData(char* data, qint64 most) override {
        if (over_limit()) return -1;
        const zip_int64_t got = zip_fread(file_.get(), data, static_cast<zip_uint64_t>(most));
        failed_ = failed_ || got < 0;
        if (got <= 0) return -1;
        total_ += got;
        since_token_ += got;
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    File file_;
    qint64 total_ = 0, since_token_ = 0;
    bool failed_ = false;
};

PartDevice& as_part(QIODevice& device) {
    return static_cast<PartDevice&>(device);
}

}  // namespace

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

std::unique_ptr<QIODevice> Package::open(const QString& part) {
    const zip_int64_t index = zip_name_locate(archive_.get(), part.toUtf8().constData(), ZIP_FL_NOCASE);
    zip_stat_t about;
    if (index < 0 || zip_stat_index(archive_.get(), static_cast<zip_uint64_t>(index), 0, &about) != 0) throw damaged();
    if ((about.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && about.encryption_method != ZIP_EM_NONE) throw encrypted();
    File file(zip_fopen_index(archive_.get(), static_cast<zip_uint64_t>(index), 0));
    if (!file) throw damaged();
    return std::make_unique<PartDevice>(std::move(file));
}

XmlPart::XmlPart(Package& package, const QString& part) : source_(package.open(part)), xml_(source_.get()) {}

XmlPart::~XmlPart() = default;

bool XmlPart::next() {
    PartDevice& part = as_part(*source_);
    const QXmlStreamReader::TokenType token = xml_.readNext();
    if (part.over_limit()) throw too_large();
    part.token_done();
    if (xml_.hasError() || part.failed() || token == QXmlStreamReader::DTD) throw damaged();
    if (token == QXmlStreamReader::StartElement && ++depth_ > deepest_nesting) throw damaged();
    if (token == QXmlStreamReader::EndElement) --depth_;
    return token != QXmlStreamReader::EndDocument;
}

QStringView XmlPart::attribute_view(QStringView local_name) const {
    for (const QXmlStreamAttribute& attribute : xml_.attributes())
        if (attribute.name() == local_name) return attribute.value();
    return {};
}

bool XmlPart::next_child() {
    while (next() && !ends())
        if (starts()) return true;
    return false;
}

void XmlPart::skip() {
    for (const int inside = depth_; depth_ >= inside;) next();
}

QString XmlPart::text() {
    QString text;
    for (const int inside = depth_; depth_ >= inside;) {
        next();
        if (text.size() < longest_text) text += characters();
    }
    return text.left(longest_text);
}

}  // namespace workbook
