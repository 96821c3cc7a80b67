// .xlsx: the package's relations lead to the workbook, and these of the workbook to its sheets and shared texts.
#include "platform/workbook_package.h"
#include "platform/workbook_readers.h"

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
        if (!xml.starts() || !xml.is(u"Relationship")) continue;
        const QString target = xml.attribute(u"Target");
        const QString path = target.startsWith(u'/') ? target.mid(1) : folder + target;
        relations.insert(xml.attribute(u"Id"), {xml.attribute(u"Type"), QDir::cleanPath(path)});
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
        if (xml.is(u"workbookView")) active = xml.attribute(u"activeTab").toInt();
        if (xml.is(u"sheet")) sheets << xml.attribute(u"id");
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
        if (xml.is(u"t")) {
            text += xml.text();
        } else if (xml.is(u"r")) {
            while (xml.next_child()) xml.is(u"t") ? void(text += xml.text()) : xml.skip();
        } else {
            xml.skip();
        }
        text.truncate(longest_text);
    }
    return unescaped(text);
}

std::vector<QString> shared_strings(Package& package, const QString& part, Sheet& sheet) {
    std::vector<QString> strings;
    if (part.isEmpty() || !package.has(part)) return strings;
    XmlPart xml(package, part);
    while (xml.next()) {
        if (!xml.starts() || !xml.is(u"si")) continue;
        strings.push_back(string_item(xml));
        sheet.count(strings.back());
    }
    return strings;
}

struct Place {
    std::int64_t row = 0, column = 0;
};

// "AB12" moves to row 12, column 28. Without a reference the cell stands behind the one before it.
void move_to(Place& place, QStringView reference) {
    if (reference.isEmpty()) return void(++place.column);
    Place found;
    for (const QChar letter : reference) {
        if (letter >= u'A' && letter <= u'Z')
            found.column = found.column * 26 + (letter.unicode() - u'A' + 1);
        else if (letter >= u'0' && letter <= u'9')
            found.row = found.row * 10 + (letter.unicode() - u'0');
        if (found.row > most_rows || found.column > most_columns) throw damaged();
    }
    place = found;
}

class SheetReader {
public:
    SheetReader(Sheet& sheet, std::vector<QString> strings) : sheet_(sheet), strings_(std::move(strings)) {}

    void read(XmlPart& xml) {
        while (xml.next()) {
            if (!xml.starts()) continue;
            if (xml.is(u"row")) {
                const QString number = xml.attribute(u"r");
                place_ = {number.isEmpty() ? place_.row + 1 : number.toLongLong(), 0};
            } else if (xml.is(u"c")) {
                read_cell(xml);
            }
        }
    }

private:
    void read_cell(XmlPart& xml) {
        static const QString shared = u"s"_s;  // of most cells
        move_to(place_, xml.attribute_view(u"r"));
        const QStringView kind = xml.attribute_view(u"t");
        const QString type = kind == shared ? shared : kind.toString();
        while (xml.next_child()) {
            if (xml.is(u"v"))
                add_value(type, xml.text());
            else if (xml.is(u"is"))
                sheet_.add(place_.row, place_.column, string_item(xml));
            else
                xml.skip();
        }
    }

    void add_value(const QString& type, const QString& value) {
        if (type == u"s") {
            bool is_number = false;
            const std::size_t index = value.toULongLong(&is_number);
            if (!is_number || index >= strings_.size()) throw damaged();
            return sheet_.add_counted(place_.row, place_.column, strings_[index]);
        }
        sheet_.add(place_.row, place_.column, shown(type, value));
    }

    static QString shown(const QString& type, const QString& value) {
        if (type == u"b") return text_of(value.trimmed() == u"1");
        if (type == u"str") return unescaped(value);
        bool is_number = false;
        const double number = value.toDouble(&is_number);
        return is_number && (type.isEmpty() || type == u"n") ? text_of(number) : value;
    }

    Sheet& sheet_;
    std::vector<QString> strings_;
    Place place_;
};

}  // namespace

bool is_xlsx(const Package& package) {
    return package.has(u"_rels/.rels"_s) && package.has(u"[Content_Types].xml"_s);
}

std::vector<Cell> read_xlsx(Package& package) {
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
