// .ods: the sheets stand one behind the other in one part; the settings name the active one.
#include "platform/workbook_readers.h"
#include "platform/workbook_xml.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace workbook {

namespace {

const QString content = u"content.xml"_s, settings = u"settings.xml"_s, manifest = u"META-INF/manifest.xml"_s;

bool asks_for_password(Package& package) {
    if (!package.has(manifest)) return false;
    XmlPart xml(package, manifest);
    while (xml.next())
        if (xml.starts() && xml.is("encryption-data")) return true;
    return false;
}

// Empty where the settings name none.
QString active_sheet(Package& package) {
    if (!package.has(settings)) return {};
    XmlPart xml(package, settings);
    while (xml.next())
        if (xml.starts() && xml.is("config-item") && xml.attribute("name") == u"ActiveTable")
            return text_of_utf8(xml.text());
    return {};
}

std::int64_t repeated(const XmlPart& xml, std::string_view attribute) {
    return static_cast<std::int64_t>(
        std::clamp<std::uint64_t>(whole_number(xml.written(attribute)).value_or(1), 1, most_rows));
}

// Days since the day on which a spreadsheet begins to count, as the other formats store a date.
QString days_of_date(const QString& value) {
    const QDateTime moment = QDateTime::fromString(value.left(19), Qt::ISODate);
    if (!moment.isValid()) return value;
    constexpr double day = 24 * 60 * 60;
    const qint64 whole = QDate(1899, 12, 30).daysTo(moment.date());
    return text_of(static_cast<double>(whole) + QTime(0, 0).secsTo(moment.time()) / day);
}

// "PT08H30M00S" as a part of a day.
QString days_of_time(const QString& value) {
    static const QRegularExpression form(u"^PT(\\d+)H(\\d+)M(\\d+(?:\\.\\d+)?)S$"_s);
    const QRegularExpressionMatch match = form.match(value);
    if (!match.hasMatch()) return value;
    const double hours =
        match.captured(1).toDouble() + match.captured(2).toDouble() / 60 + match.captured(3).toDouble() / (60 * 60);
    return text_of(hours / 24);
}

// A paragraph's text. Blanks that follow each other count once, as the format has it; it writes the others as elements.
class Paragraph {
public:
    QString read(XmlPart& xml) {
        for (int depth = 1; depth > 0;) {
            xml.next();
            if (xml.ends()) --depth;
            if (xml.starts() && !takes_element(xml)) ++depth;
            for (const QChar letter : xml.characters()) add(letter);
        }
        return text_;
    }

private:
    // Whether the element has been read to its end.
    bool takes_element(XmlPart& xml) {
        if (xml.is("s"))
            text_.append(QString(std::min(repeated(xml, "c"), room()), u' '));
        else if (xml.is("tab") && room() > 0)
            text_ += u'\t';
        else if (xml.is("line-break") && room() > 0)
            text_ += u'\n';
        else if (!xml.is("annotation") && !xml.is("note") && !xml.is("frame") && !xml.is("ruby-text"))
            return false;
        xml.skip();
        blank_counts_ = true;
        return true;
    }

    void add(QChar letter) {
        const bool blank = letter == u' ' || letter == u'\n' || letter == u'\t' || letter == u'\r';
        if (room() > 0 && (!blank || blank_counts_)) text_ += blank ? QChar(u' ') : letter;
        blank_counts_ = !blank;
    }

    std::int64_t room() const { return longest_text - text_.size(); }

    QString text_;
    bool blank_counts_ = false;
};

// The cell on which the reader stands, to its end.
QString read_cell(XmlPart& xml) {
    const QString type = xml.attribute("value-type"), value = xml.attribute("value");
    const QString date = xml.attribute("date-value"), time = xml.attribute("time-value");
    const QString truth = xml.attribute("boolean-value"), stored = xml.attribute("string-value");
    QStringList paragraphs;
    qsizetype length = 0;
    while (xml.next_child()) {
        if (!xml.is("p") || length > longest_text) {
            xml.skip();
            continue;
        }
        paragraphs << Paragraph().read(xml);
        length += paragraphs.last().size() + 1;
    }
    bool is_number = false;
    const double number = value.toDouble(&is_number);
    if (is_number) return text_of(number);
    if (type == u"date" && !date.isEmpty()) return days_of_date(date);
    if (type == u"time" && !time.isEmpty()) return days_of_time(time);
    if (type == u"boolean") return text_of(truth == u"true");
    return stored.isEmpty() ? paragraphs.join(u'\n') : stored;
}

struct Repeated {
    std::int64_t column, columns;
    Text text;
};

std::vector<Repeated> read_row(XmlPart& xml, Sheet& sheet) {
    std::vector<Repeated> cells;
    std::int64_t column = 1;
    while (xml.next_child()) {
        const std::int64_t columns = repeated(xml, "number-columns-repeated");
        if (xml.is("table-cell")) {
            const Text text = sheet.keep(read_cell(xml));
            if (text.length > 0) cells.push_back({column, columns, text});
        } else {
            xml.skip();  // covered by a merged cell, so nobody sees it
        }
        column += columns;
    }
    return cells;
}

void add_row(Sheet& sheet, const std::vector<Repeated>& cells, std::int64_t row) {
    for (const Repeated& cell : cells)
        for (std::int64_t column = cell.column; column < cell.column + cell.columns; ++column)
            sheet.add(row, column, cell.text);
}

// Rows may stand in groups and headers. Rows that repeat nothing are not gone through: the last one often stands for
// the rest of the sheet.
Table read_table(XmlPart& xml) {
    Sheet sheet;
    std::int64_t row = 1;
    for (int depth = 1; depth > 0;) {
        xml.next();
        if (xml.ends()) --depth;
        if (!xml.starts()) continue;
        if (xml.is("table-row")) {
            const std::int64_t rows = repeated(xml, "number-rows-repeated");
            const std::vector<Repeated> cells = read_row(xml, sheet);
            for (std::int64_t i = 0; i < rows && !cells.empty(); ++i) add_row(sheet, cells, row + i);
            row += rows;
        } else if (xml.is("table-row-group") || xml.is("table-rows") || xml.is("table-header-rows")) {
            ++depth;
        } else {
            xml.skip();
        }
    }
    return sheet.take();
}

// On the element "spreadsheet". The first table stands in for an active one that is not there.
Table read_spreadsheet(XmlPart& xml, const QString& active) {
    Table first;
    bool found = false;
    while (xml.next_child()) {
        if (!xml.is("table")) {
            xml.skip();
        } else if (active.isEmpty() || xml.attribute("name") == active) {
            return read_table(xml);
        } else if (std::exchange(found, true)) {
            xml.skip();
        } else {
            first = read_table(xml);
        }
    }
    if (!found) throw damaged();
    return first;
}

}  // namespace

bool is_ods(const Package& package) {
    return package.has(content) || package.has(manifest);
}

Table read_ods(Package& package) {
    if (asks_for_password(package)) throw encrypted();
    const QString active = active_sheet(package);
    XmlPart xml(package, content);
    while (xml.next()) {
        if (!xml.starts() || !xml.is("body")) continue;
        if (!xml.next_child() || !xml.is("spreadsheet")) throw no_workbook();
        Table cells = read_spreadsheet(xml, active);
        while (xml.next()) continue;  // a file that was cut shows it at its end
        return cells;
    }
    throw no_workbook();
}

}  // namespace workbook
