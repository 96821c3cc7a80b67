#include "platform/cell_records.h"

#include "platform/rtf_code_pages.h"

#include <algorithm>
#include <utility>

namespace workbook {

namespace {

constexpr std::uint16_t continuation = 0x003C;
constexpr qsizetype header_size = 4;
constexpr qsizetype usual_piece = 32 * 1024;  // bytes; four of the longest records that Excel writes

}  // namespace

Records::Records(ByteStream& stream, std::uint32_t begin)
    : stream_(stream), at_(begin), end_(stream.size()), piece_(static_cast<std::size_t>(usual_piece)) {
    if (at_ >= end_) throw damaged();
}

bool Records::next() {
    if (end_ - at_ < header_size) return false;
    const RecordView header(bytes(header_size));
    id_ = header.word(0);
    const std::uint16_t length = header.word(2);
    at_ += header_size;
    view_ = RecordView(bytes(length));
    at_ += length;
    return true;
}

QByteArrayView Records::bytes(qsizetype count) {
    if (count > end_ - at_) throw damaged();
    if (at_ + count > piece_begin_ + piece_size_) {
        piece_begin_ = at_;
        piece_size_ = std::min(std::max(count, usual_piece), end_ - at_);
        if (std::cmp_greater(piece_size_, piece_.size())) piece_.resize(static_cast<std::size_t>(piece_size_));
        stream_.read(at_, piece_.data(), piece_size_);
    }
    return QByteArrayView(piece_.data(), piece_size_).sliced(at_ - piece_begin_, count);
}

void ContinuedReader::go_on() {
    while (left() <= 0) {
        if (!records_.next() || records_.id() != continuation) throw damaged();
        at_ = 0;
    }
}

std::uint8_t ContinuedReader::byte() {
    go_on();
    return records_.view().byte(at_++);
}

std::uint16_t ContinuedReader::word() {
    const unsigned low = byte();
    return static_cast<std::uint16_t>(low | static_cast<unsigned>(byte()) << 8);
}

void ContinuedReader::pass(std::int64_t bytes) {
    while (bytes > 0) {
        go_on();
        const qsizetype here = std::min<std::int64_t>(bytes, left());
        at_ += here;
        bytes -= here;
    }
}

QString ContinuedReader::text() {
    enum Flag : unsigned { wide = 1, with_readings = 4, with_runs = 8 };
    const std::uint16_t count = word();
    const unsigned flags = byte();
    const std::int64_t runs = (flags & with_runs) != 0 ? word() : 0;
    const std::int64_t readings_low = (flags & with_readings) != 0 ? word() : 0;
    const std::int64_t readings_high = (flags & with_readings) != 0 ? word() : 0;
    const QString text = letters(count, (flags & wide) != 0);
    pass(runs * 4 + readings_low + readings_high * 0x10000);
    return text;
}

// Where the letters go on in another record, it begins with a new mark of their width.
QString ContinuedReader::letters(qsizetype count, bool wide) {
    QString text(count, Qt::Uninitialized);
    QChar* to = text.data();
    while (count > 0) {
        if (left() <= 0) wide = (byte() & 1) != 0;
        const qsizetype width = wide ? 2 : 1;
        const qsizetype here = std::min(count, left() / width);
        if (here == 0) throw damaged();
        const QByteArrayView bytes = records_.view().bytes(at_, here * width);
        if (wide)
            qFromLittleEndian<char16_t>(bytes.data(), here, to);
        else
            std::ranges::transform(bytes, to, [](char letter) { return QLatin1Char(letter); });
        at_ += bytes.size();
        to += here;
        count -= here;
    }
    return text;
}

QString ContinuedReader::text_of_code_page(int code_page) {
    const QChar* page = rtf::letters_of_code_page(code_page);
    QString text;
    for (int count = word(); count > 0; --count) text += page[byte()];
    return text;
}

}  // namespace workbook
