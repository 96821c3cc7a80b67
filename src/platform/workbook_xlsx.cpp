// .xlsx: the package's relations lead to the workbook, and these of the workbook to its sheets and shared texts.
#include "platform/workbook_readers.h"
#include "platform/workbook_xml.h"

#include <QDir>
#include <QHash>

using namespace Qt::StringLiterals;

namespace workbook {

namespace {

struct Relation {
    QString type, part;
};
using Relations = QHash<QString, Relation>;  // by id

QString folder_of(const QString& part) {
    return part.left(part.lastIndexOf(u'/') + 1);
}

// Targets are relative to the folder of the part that names them, or begin at the root of the package.
Relations relations_of(Package& package, const QString& part) {
    const QString folder = folder_of(part);
    const QString file = folder + u"_rels/"_s + part.mid(folder.size()) + u".rels"_s;
    Relations relations;
    if (!package.has(file)) return relations;
    XmlPart xml(package, file);
    while (xml.next()) {
        if (!xml.starts() || !xml.is("Relationship")) continue;
        const QString target = xml.attribute("Target");
        const QString path = target.startsWith(u'/') ? target.mid(1) : folder + target;
        relations.insert(xml.attribute("Id"), {xml.attribute("Type"), QDir::cleanPath(path)});
    }
    return relations;
}

// The last word of a type tells the kind, in both forms of the standard. Empty without one.
QString part_of_kind(const Relations& relations, QStringView ending) {
    for (const Relation& relation : relations)
        if (relation.type.endsWith(ending)) return relation.part;
    return {};
}

QString active_sheet(Package& package, const QString& book, const Relations& relations) {
    XmlPart xml(package, book);
    qsizetype active = 0;
    QStringList sheets;
    while (xml.next()) {
        if (!xml.starts()) continue;
        if (xml.is("workbookView")) active = xml.attribute("activeTab").toInt();
        if (xml.is("sheet")) sheets << xml.attribute("id");
    }
    if (sheets.isEmpty()) throw no_workbook();  // a letter or a presentation comes in the same package
    const auto sheet = relations.constFind(sheets.value(active, sheets.first()));
    if (sheet == relations.cend()) throw damaged();
    if (!sheet->type.endsWith(u"/worksheet")) throw no_table();
    return sheet->part;
}

// "_x000D_" stands for a letter that XML cannot hold.
QString unescaped(QString text) {
    constexpr qsizetype length = 7;
    for (qsizetype at = text.indexOf(u"_x"); at >= 0; at = text.indexOf(u"_x", at + 1)) {
        if (at + length > text.size() || text[at + length - 1] != u'_') continue;
        bool is_code = false;
        const ushort code = text.mid(at + 2, 4).toUShort(&is_code, 16);
        if (is_code) text.replace(at, length, QChar(code));
    }
    return text;
}

// The text of a shared or inline string: its runs one behind the other, without the readings of phonetic runs.
QString string_item(XmlPart& xml) {
    QString text;
    while (xml.next_child()) {
        if (xml.is("t")) {
            text += text_of_utf8(xml.text());
        } else if (xml.is("r")) {
            while (xml.next_child()) xml.is("t") ? void(text += text_of_utf8(xml.text())) : xml.skip();
        } else {
            xml.skip();
        }
        text.truncate(longest_text);
    }
    return unescaped(text);
}

std::vector<Text> shared_strings(Package& package, const QString& part, Sheet& sheet) {
    std::vector<Text> strings;
    if (part.isEmpty() || !package.has(part)) return strings;
    XmlPart xml(package, part);
    while (xml.next())
        if (xml.starts() && xml.is("si")) strings.push_back(sheet.keep(string_item(xml)));
    return strings;
}

struct Place {
    std::int64_t row = 0, column = 0;
};

// "AB12" moves to row 12, column 28. Without a reference the cell stands behind the one before it.
void move_to(Place& place, std::string_view reference) {
    if (reference.empty()) return void(++place.column);
    Place found;
    for (const char letter : reference) {
        if (letter >= 'A' && letter <= 'Z')
            found.column = found.column * 26 + (letter - 'A' + 1);
        else if (letter >= '0' && letter <= '9')
            found.row = found.row * 10 + (letter - '0');
        if (found.row > most_rows || found.column > most_columns) throw damaged();
    }
    place = found;
}

// What the value of a cell is; dates and errors stand as they are shown.
enum class Kind { number, shared, text, truth, shown };

Kind kind_of(std::string_view type) {
    if (type == "s") return Kind::shared;
    if (type.empty() || type == "n") return Kind::number;
    if (type == "str") return Kind::text;
    return type == "b" ? Kind::truth : Kind::shown;
}

class SheetReader {
public:
    SheetReader(Sheet& sheet, std::vector<Text> strings) : sheet_(sheet), strings_(std::move(strings)) {}

    void read(XmlPart& xml) {
        while (xml.next()) {
            if (!xml.starts()) continue;
            if (xml.is("row")) {
                const std::string_view number = xml.written("r");
                const auto row = static_cast<std::int64_t>(whole_number(number).value_or(0));
                place_ = {number.empty() ? place_.row + 1 : row, 0};
            } else if (xml.is("c")) {
                read_cell(xml);
            }
        }
    }

private:
    void read_cell(XmlPart& xml) {
        move_to(place_, xml.written("r"));
        const Kind kind = kind_of(xml.written("t"));
        while (xml.next_child()) {
            if (xml.is("v"))
                add_value(kind, xml.text());
            else if (xml.is("is"))
                sheet_.add(place_.row, place_.column, string_item(xml));
            else
                xml.skip();
        }
    }

    void add_value(Kind kind, std::string_view value) {
        if (kind != Kind::shared) return sheet_.add(place_.row, place_.column, shown(kind, value));
        const auto index = whole_number(value);
        if (!index || *index >= strings_.size()) throw damaged();
        sheet_.add(place_.row, place_.column, strings_[*index]);
    }

    static QString shown(Kind kind, std::string_view value) {
        if (kind == Kind::truth) return text_of(whole_number(value) == 1U);
        if (kind == Kind::text) return unescaped(text_of_utf8(value));
        const auto number = kind == Kind::number ? decimal_number(value) : std::nullopt;
        return number ? text_of(*number) : text_of_utf8(value);
    }

    Sheet& sheet_;
    std::vector<Text> strings_;
    Place place_;
};

}  // namespace

bool is_xlsx(const Package& package) {
    return package.has(u"_rels/.rels"_s) && package.has(u"[Content_Types].xml"_s);
}

Table read_xlsx(Package& package) {
    const QString book = part_of_kind(relations_of(package, {}), u"/officeDocument");
    if (book.isEmpty()) throw damaged();
    if (!book.endsWith(u".xml", Qt::CaseInsensitive)) throw no_workbook();  // .xlsb
    const Relations relations = relations_of(package, book);
    const QString part = active_sheet(package, book, relations);
    Sheet sheet;
    SheetReader reader(sheet, shared_strings(package, part_of_kind(relations, u"/sharedStrings"), sheet));
    XmlPart xml(package, part);
    reader.read(xml);
    return sheet.take();
}

}  // namespace workbook
