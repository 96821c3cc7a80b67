// The records of an .xls file: a stream of pieces, each with a number that says what it is, a length and bytes.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace workbook {

// The numbers in a record, little end first. All throw damaged() beyond its end.
class RecordView {
public:
    RecordView() = default;
    explicit RecordView(QByteArrayView bytes) : bytes_(bytes) {}

    qsizetype size() const { return bytes_.size(); }
    std::uint8_t byte(qsizetype at) const;
    std::uint16_t word(qsizetype at) const;
    std::uint32_t long_word(qsizetype at) const;
    double number(qsizetype at) const;
    QByteArrayView bytes(qsizetype at, qsizetype count) const;

private:
    QByteArrayView bytes_;
};

// Goes through the records of a stream, which must outlive it.
class Records {
public:
    explicit Records(QByteArrayView stream, std::uint32_t begin = 0);

    // To the next record; false at the end of the stream. Throws damaged() for a record that is cut.
    bool next();
    std::uint16_t id() const { return id_; }
    const RecordView& view() const { return view_; }

private:
    QByteArrayView stream_;
    qsizetype at_;
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
