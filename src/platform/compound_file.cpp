#include "platform/compound_file.h"

#include "platform/workbook_sheet.h"

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-utils.h>

namespace workbook {

namespace {

void say_nothing(const char*, GLogLevelFlags, const char*, void*) {}

// A damaged file is told in the program's own words, not in the library's on the console.
bool set_up_library() {
    gsf_init();
    for (const char* speaker : {"libgsf:msole", static_cast<const char*>(nullptr)})
        g_log_set_handler(speaker, static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL), say_nothing,
                          nullptr);
    return true;
}

GsfInput* open_file(const QString& native_file) {
    [[maybe_unused]] static const bool ready = set_up_library();
    GsfInput* input = gsf_input_stdio_new(native_file.toUtf8().constData(), nullptr);
    if (input == nullptr) throw damaged();
    return input;
}

}  // namespace

void ByteStream::Close::operator()(GsfInput* input) const {
    g_object_unref(input);
}

ByteStream::ByteStream(const QString& native_file) : input_(open_file(native_file)) {}

qsizetype ByteStream::size() const {
    return gsf_input_size(input_.get());
}

void ByteStream::read(qsizetype at, char* to, qsizetype bytes) {
    if (bytes == 0) return;
    if (gsf_input_seek(input_.get(), at, G_SEEK_SET) != 0 ||
        gsf_input_read(input_.get(), static_cast<std::size_t>(bytes), reinterpret_cast<guint8*>(to)) == nullptr)
        throw damaged();
}

void CompoundFile::Close::operator()(GsfInfile* file) const {
    g_object_unref(file);
}

CompoundFile::CompoundFile(const QString& native_file) {
    const ByteStream whole(native_file);
    size_ = whole.size();
    file_.reset(gsf_infile_msole_new(whole.input_.get(), nullptr));
    if (!file_) throw damaged();
}

// The size of a stream is only told; one that is larger than its file is damaged.
std::optional<ByteStream> CompoundFile::stream(const char* name) const {
    GsfInput* found = gsf_infile_child_by_name(file_.get(), name);
    if (found == nullptr) return std::nullopt;
    ByteStream stream(found);
    if (stream.size() <= 0 || stream.size() > size_) throw damaged();
    return stream;
}

}  // namespace workbook
