// The records of an .xls file: a stream of pieces, each with a number that says what it is, a length and bytes.
#pragma once

#include "platform/compound_file.h"
#include "platform/workbook_sheet.h"

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <bit>
#include <cstdint>
#include <vector>

namespace workbook {

// The numbers in a record, little end first. All throw damaged() beyond its end.
class RecordView {
public:
    RecordView() = default;
    explicit RecordView(QByteArrayView bytes) : bytes_(bytes) {}

    qsizetype size() const { return bytes_.size(); }
    std::uint8_t byte(qsizetype at) const { return whole<std::uint8_t>(at); }
    std::uint16_t word(qsizetype at) const { return whole<std::uint16_t>(at); }
    std::uint32_t long_word(qsizetype at) const { return whole<std::uint32_t>(at); }
    double number(qsizetype at) const { return std::bit_cast<double>(whole<std::uint64_t>(at)); }
    QByteArrayView bytes(qsizetype at, qsizetype count) const {
        if (at < 0 || count < 0 || at > size() || count > size() - at) throw damaged();
        return bytes_.sliced(at, count);
    }

private:
    template <typename Whole>
    Whole whole(qsizetype at) const {
        return qFromLittleEndian<Whole>(bytes(at, sizeof(Whole)).data());
    }

    QByteArrayView bytes_;
};

// Goes through the records of a stream, which must outlive it. Reads a piece of the stream at a time.
class Records {
public:
    explicit Records(ByteStream& stream, std::uint32_t begin = 0);

    // To the next record; false at the end of the stream. Throws damaged() for a record that is cut.
    bool next();
    std::uint16_t id() const { return id_; }
    const RecordView& view() const { return view_; }  // until the next one

private:
    QByteArrayView bytes(qsizetype count);  // at the place where it stands

    ByteStream& stream_;
    qsizetype at_;
    const qsizetype end_;
    std::vector<char> piece_;
    qsizetype piece_begin_ = 0, piece_size_ = 0;
    std::uint16_t id_ = 0;
    RecordView view_;
};

// Reads bytes and texts that go on in the records of continuation behind the current one, and moves there.
class ContinuedReader {
public:
    // Begins at `at` of the record on which `records` stands.
    ContinuedReader(Records& records, qsizetype at) : records_(records), at_(at) {}

    std::uint16_t word();
    // A text with its length, a mark of its width, and runs and readings that are passed over.
    QString text();
    // Bytes in a code page of their own, with their length; the text of a file before Excel 97.
    QString text_of_code_page(int code_page);

private:
    qsizetype left() const { return records_.view().size() - at_; }
    void go_on();  // to the next record of continuation where this one is used up
    std::uint8_t byte();
    void pass(std::int64_t bytes);
    QString letters(qsizetype count, bool wide);

    Records& records_;
    qsizetype at_;
};

}  // namespace workbook
