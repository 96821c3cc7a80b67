#include "platform/cell_records.h"

#include "platform/rtf_code_pages.h"
#include "platform/workbook_sheet.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace workbook {

namespace {

constexpr std::uint16_t continuation = 0x003C;
constexpr qsizetype header_size = 4;

}  // namespace

QByteArrayView RecordView::bytes(qsizetype at, qsizetype count) const {
    if (at < 0 || count < 0 || at > size() || count > size() - at) throw damaged();
    return bytes_.sliced(at, count);
}

std::uint8_t RecordView::byte(qsizetype at) const {
    return static_cast<std::uint8_t>(bytes(at, 1)[0]);
}
std::uint16_t RecordView::word(qsizetype at) const {
    return qFromLittleEndian<std::uint16_t>(bytes(at, 2).data());
}
std::uint32_t RecordView::long_word(qsizetype at) const {
    return qFromLittleEndian<std::uint32_t>(bytes(at, 4).data());
}
double RecordView::number(qsizetype at) const {
    return std::bit_cast<double>(qFromLittleEndian<std::uint64_t>(bytes(at, 8).data()));
}

Records::Records(QByteArrayView stream, std::uint32_t begin) : stream_(stream), at_(begin) {
    if (at_ >= stream_.size()) throw damaged();
}

bool Records::next() {
    if (stream_.size() - at_ < header_size) return false;
    const RecordView rest(stream_.sliced(at_));
    id_ = rest.word(0);
    const std::uint16_t length = rest.word(2);
    view_ = RecordView(rest.bytes(header_size, length));
    at_ += header_size + length;
    return true;
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
    QString text;
    while (count > 0) {
        if (left() <= 0) wide = (byte() & 1) != 0;
        const qsizetype width = wide ? 2 : 1;
        const qsizetype here = std::min(count, left() / width);
        if (here == 0) throw damaged();
        const QByteArrayView bytes = records_.view().bytes(at_, here * width);
        const qsizetype before = text.size();
        text.resize(before + here);
        if (wide)
            qFromLittleEndian<char16_t>(bytes.data(), here, text.data() + before);
        else
            std::ranges::transform(bytes, text.data() + before, [](char letter) { return QLatin1Char(letter); });
        at_ += bytes.size();
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
