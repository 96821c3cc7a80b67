// .xls of Excel 97 (BIFF8) and Excel 5 and 95 (BIFF5): cell records in a stream of a compound file.
#include "platform/cell_records.h"
#include "platform/compound_file.h"
#include "platform/workbook_readers.h"

#include <bit>
#include <vector>

namespace workbook {

namespace {

enum RecordId : std::uint16_t {
    formula = 0x0006,
    end_of_stream = 0x000A,
    file_password = 0x002F,
    window = 0x003D,
    code_page = 0x0042,
    sheet_place = 0x0085,
    many_short_numbers = 0x00BD,
    rich_label = 0x00D6,
    shared_texts = 0x00FC,
    shared_label = 0x00FD,
    number = 0x0203,
    label = 0x0204,
    truth_or_error = 0x0205,
    text_of_formula = 0x0207,
    short_number = 0x027E,
    begin_of_stream = 0x0809,
};

constexpr std::uint16_t excel_97 = 0x0600, excel_5 = 0x0500;
constexpr std::uint16_t kind_of_globals = 0x0005;

// 30 bits of a whole number or of a double's upper end, perhaps of its hundredfold.
double of_short_number(std::uint32_t packed) {
    enum Flag : std::uint32_t { hundredfold = 1, whole = 2 };
    const double value = (packed & whole) != 0
                             ? static_cast<double>(static_cast<std::int32_t>(packed) >> 2)
                             : std::bit_cast<double>(static_cast<std::uint64_t>(packed & ~std::uint32_t{3}) << 32);
    return (packed & hundredfold) != 0 ? value / 100 : value;
}

QString of_truth_or_error(std::uint8_t value, bool is_error) {
    if (!is_error) return text_of(value != 0);
    switch (value) {
        case 0x00:
            return QStringLiteral("#NULL!");
        case 0x07:
            return QStringLiteral("#DIV/0!");
        case 0x0F:
            return QStringLiteral("#VALUE!");
        case 0x17:
            return QStringLiteral("#REF!");
        case 0x1D:
            return QStringLiteral("#NAME?");
        case 0x24:
            return QStringLiteral("#NUM!");
        default:
            return QStringLiteral("#N/A");
    }
}

// What stands before the sheets and holds for all of them.
struct Globals {
    bool is_excel_97 = true;
    int code_page = 1254;
    std::size_t active = 0;
    struct Place {
        std::uint32_t begin;
        bool is_table;
    };
    std::vector<Place> sheets;
    std::vector<Text> texts;
};

bool version_is_97(const RecordView& begin) {
    const std::uint16_t version = begin.word(0);
    if (version != excel_97 && version != excel_5) throw no_workbook();
    return version == excel_97;
}

std::vector<Text> read_shared_texts(Records& records, Sheet& sheet) {
    const std::uint32_t count = records.view().long_word(4);
    ContinuedReader reader(records, 8);
    std::vector<Text> texts;
    for (std::uint32_t i = 0; i < count; ++i) texts.push_back(sheet.keep(reader.text()));
    return texts;
}

Globals read_globals(ByteStream& stream, Sheet& sheet) {
    Records records(stream);
    if (!records.next() || records.id() != begin_of_stream) throw damaged();
    Globals globals;
    globals.is_excel_97 = version_is_97(records.view());
    if (records.view().word(2) != kind_of_globals) throw no_workbook();
    while (records.next() && records.id() != end_of_stream) {
        const RecordView& record = records.view();
        if (records.id() == file_password) throw encrypted();
        if (records.id() == window) globals.active = record.word(10);
        if (records.id() == code_page) globals.code_page = record.word(0);
        if (records.id() == sheet_place) globals.sheets.push_back({record.long_word(0), record.byte(5) == 0});
        if (records.id() == shared_texts) globals.texts = read_shared_texts(records, sheet);
    }
    if (records.id() != end_of_stream || globals.sheets.empty()) throw damaged();
    return globals;
}

class TableReader {
public:
    TableReader(ByteStream& stream, const Globals& globals, std::uint32_t begin, Sheet& sheet)
        : records_(stream, begin), globals_(globals), sheet_(sheet) {}

    // Charts inside the sheet are streams of their own within it.
    void read() {
        if (!records_.next() || records_.id() != begin_of_stream) throw damaged();
        for (int depth = 1; depth > 0;) {
            if (!records_.next()) throw damaged();
            if (records_.id() == begin_of_stream) ++depth;
            if (records_.id() == end_of_stream) --depth;
            if (depth == 1) read_cell();
        }
    }

private:
    void read_cell() {
        const RecordView& record = records_.view();
        switch (records_.id()) {
            case number:
                return add(text_of(record.number(6)));
            case short_number:
                return add(text_of(of_short_number(record.long_word(6))));
            case many_short_numbers:
                return add_many();
            case truth_or_error:
                return add(of_truth_or_error(record.byte(6), record.byte(7) != 0));
            case label:
            case rich_label:
                return add_text(6);
            case shared_label:
                return add_shared();
            case formula:
                return add_result();
            case text_of_formula:
                return add_text_of_formula();
            default:
                return;
        }
    }

    void take_place() {
        row_ = records_.view().word(0) + 1;
        column_ = records_.view().word(2) + 1;
    }

    void add(const QString& text) {
        take_place();
        sheet_.add(row_, column_, text);
    }

    void add_many() {
        take_place();
        constexpr qsizetype first = 4, size = 6;
        for (qsizetype at = first; at + size < records_.view().size(); at += size, ++column_)
            sheet_.add(row_, column_, text_of(of_short_number(records_.view().long_word(at + 2))));
    }

    // A text may move the records on, so its place is taken first.
    void add_text(qsizetype at) {
        take_place();
        sheet_.add(row_, column_, text_at(at));
    }

    QString text_at(qsizetype at) {
        ContinuedReader reader(records_, at);
        return globals_.is_excel_97 ? reader.text() : reader.text_of_code_page(globals_.code_page);
    }

    void add_shared() {
        take_place();
        const std::size_t index = records_.view().long_word(6);
        if (index >= globals_.texts.size()) throw damaged();
        sheet_.add(row_, column_, globals_.texts[index]);
    }

    // Eight bytes are a number, or a mark and what kind of result it is; a text stands in a record of its own behind.
    void add_result() {
        const RecordView& record = records_.view();
        if (record.word(12) != 0xFFFF) return add(text_of(record.number(6)));
        enum Kind : std::uint8_t { text, truth, error };
        const std::uint8_t kind = record.byte(6);
        if (kind == truth || kind == error) return add(of_truth_or_error(record.byte(8), kind == error));
        take_place();
        awaits_text_ = kind == text;
    }

    void add_text_of_formula() {
        if (awaits_text_) sheet_.add(row_, column_, text_at(0));
        awaits_text_ = false;
    }

    Records records_;
    const Globals& globals_;
    Sheet& sheet_;
    std::int64_t row_ = 0, column_ = 0;
    bool awaits_text_ = false;
};

Table read_records(ByteStream& stream) {
    Sheet sheet;
    constexpr qsizetype smallest_cell = 14;  // bytes; many short numbers take less, and are few
    sheet.expect(stream.size() / smallest_cell);
    const Globals globals = read_globals(stream, sheet);
    const std::size_t active = globals.active < globals.sheets.size() ? globals.active : 0;
    if (!globals.sheets[active].is_table) throw no_table();
    TableReader(stream, globals, globals.sheets[active].begin, sheet).read();
    return sheet.take();
}

}  // namespace

bool is_compound_file(const QByteArray& file) {
    return file.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

// Files of Excel 2 to 4 begin alike, and are refused by their version.
bool is_cell_records(const QByteArray& file) {
    return file.size() > 4 && file[0] == '\x09' && (file[1] & '\xF1') == 0 && file[3] == '\0';
}

Table read_cell_records(const QString& native_file) {
    ByteStream stream(native_file);
    char version[2];
    stream.read(0, version, sizeof version);
    if (version[1] != '\x08') throw no_workbook();
    return read_records(stream);
}

Table read_compound_file(const QString& native_file) {
    const CompoundFile file(native_file);
    for (const char* book : {"Workbook", "Book"})
        if (auto stream = file.stream(book)) return read_records(*stream);
    if (file.stream("EncryptedPackage")) throw encrypted();
    throw no_workbook();
}

}  // namespace workbook
