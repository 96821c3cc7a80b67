// .csv: encoding and separator are not written anywhere, so the content shows them.
#include "platform/code_page.h"
#include "platform/workbook_readers.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace workbook {

namespace {

constexpr QChar quote = u'"';

QString decoded(const QByteArray& file, QStringConverter::Encoding encoding) {
    return QStringDecoder(encoding).decode(file);
}

// Half of the bytes of Latin letters in UTF-16 are zeros, all on the same side.
std::optional<QStringConverter::Encoding> utf16_without_mark(const QByteArray& file) {
    const qsizetype looked_at = std::min<qsizetype>(file.size(), 1000);
    std::array<qsizetype, 2> zeros{};
    for (qsizetype i = 0; i < looked_at; ++i)
        if (file[i] == '\0') ++zeros[static_cast<std::size_t>(i % 2)];
    if (zeros[0] + zeros[1] < looked_at / 4) return std::nullopt;
    if (zeros[0] == 0) return QStringConverter::Utf16LE;
    if (zeros[1] == 0) return QStringConverter::Utf16BE;
    return std::nullopt;
}

QString text_of_file(const QByteArray& file) {
    if (file.startsWith("\xFF\xFE") || file.startsWith("\xFE\xFF")) return decoded(file, QStringConverter::Utf16);
    if (const auto encoding = utf16_without_mark(file)) return decoded(file, *encoding);
    QStringDecoder utf8(QStringConverter::Utf8);
    const QString text = utf8(file);
    return utf8.hasError() ? code_page::decode(file) : text;
}

// A page of the web or another XML file, a letter and a paper may well be plain text from end to end.
bool is_table_text(QStringView text) {
    const QStringView content = text.trimmed();
    for (const QStringView other_kind : {u"<", u"{\\rtf", u"%PDF-"})
        if (content.startsWith(other_kind)) return false;
    return std::ranges::none_of(text, [](QChar letter) {
        return letter < u' ' && letter != u'\t' && letter != u'\n' && letter != u'\r' && letter != u'\f';
    });
}

// Goes through the cells of a text: each ends at a separator or at the end of a line, but not in quotes.
class Cells {
public:
    Cells(QStringView text, QChar separator) : text_(text), separator_(separator) {}

    bool at_end() const { return at_ >= text_.size(); }
    // The next cell; `ends_row` tells whether it was the last one of its row.
    QString next(bool& ends_row) {
        QString cell;
        if (!at_end() && text_[at_] == quote) cell = quoted();
        const qsizetype begin = at_;
        while (!at_end() && text_[at_] != separator_ && !at_line_end()) ++at_;
        cell += text_.mid(begin, at_ - begin);
        ends_row = at_end() || at_line_end();
        pass_end();
        return cell.left(longest_text);
    }

private:
    bool at_line_end() const { return text_[at_] == u'\n' || text_[at_] == u'\r'; }

    void pass_end() {
        if (at_end()) return;
        const bool two = text_[at_] == u'\r' && at_ + 1 < text_.size() && text_[at_ + 1] == u'\n';
        at_ += two ? 2 : 1;
    }

    // Two quotes stand for one. Without a closing one the rest of the text belongs to the cell.
    QString quoted() {
        QString cell;
        for (++at_; !at_end(); ++at_) {
            if (text_[at_] == quote) {
                ++at_;
                if (at_end() || text_[at_] != quote) return cell;
            }
            cell += text_[at_];
        }
        return cell;
    }

    QStringView text_;
    QChar separator_;
    qsizetype at_ = 0;
};

// In how many of the first rows the separator makes as many cells as in the first one; 0 where it makes one only.
int agreement(QStringView text, QChar separator) {
    constexpr int rows_looked_at = 50;
    Cells cells(text, separator);
    int first = 0, agreeing = 0;
    for (int row = 0; row < rows_looked_at && !cells.at_end(); ++row) {
        int count = 0;
        for (bool ends_row = false; !ends_row; ++count) cells.next(ends_row);
        if (row == 0) first = count;
        if (count == first) ++agreeing;
    }
    return first > 1 ? agreeing : 0;
}

// Commas come last: they stand in amounts and addresses too.
QChar separator_of(QStringView text) {
    QChar best = u'\t';
    for (const QChar separator : {u';', u','})
        if (agreement(text, separator) > agreement(text, best)) best = separator;
    return best;
}

// "sep=;" in the first line says what separates; it is no row.
QChar take_told_separator(QStringView& text) {
    constexpr QStringView sign = u"sep=";
    if (!text.startsWith(sign, Qt::CaseInsensitive) || text.size() <= sign.size()) return QChar();
    const QChar separator = text[sign.size()];
    QStringView rest = text.mid(sign.size() + 1);
    if (!rest.startsWith(u'\r') && !rest.startsWith(u'\n')) return QChar();
    text = rest.mid(rest.startsWith(u"\r\n") ? 2 : 1);
    return separator;
}

}  // namespace

Table read_csv(const QByteArray& file) {
    QString whole = text_of_file(file);
    if (whole.endsWith(u'\x1A')) whole.chop(1);  // the end of a text as old programs mark it
    if (!is_table_text(whole)) throw no_workbook();
    QStringView text = whole;
    const QChar told = take_told_separator(text);
    Sheet sheet;
    std::int64_t row = 1, column = 1;
    for (Cells cells(text, told.isNull() ? separator_of(text) : told); !cells.at_end();) {
        bool ends_row = false;
        sheet.add(row, column, cells.next(ends_row));
        row += ends_row ? 1 : 0;
        column = ends_row ? 1 : column + 1;
    }
    return sheet.take();
}

}  // namespace workbook
