#include "audit_checks.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "store/conversion.h"

#include <QTime>

#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace audit {
namespace {

using store::FileKind;
using store::Recordset;

QString name_of(const store::FieldDef& field) {
    return QString::fromStdString(field.name);
}

// Every row of every table of the file.
template <typename Handle>
void each_row(Books& books, Handle handle) {
    for (const store::TableDef& table : store::catalogue(books.kind)) {
        Recordset rows = books.file.OpenRecordset(table.name);
        store::scan_all(rows, [&] { handle(rows, table); });
    }
}

void empty_texts(Books& books, const Tell& tell) {
    each_row(books, [&](Recordset& row, const store::TableDef& table) {
        for (const store::FieldDef& field : table.fields) {
            const store::Value& value = row[field.name].value();
            if (value.is_text() && value.text().isEmpty())
                tell(row, u"%1 boş metin; değeri olmayan alanda bir boşluk durur"_s.arg(name_of(field)));
            if (value.is_null() && field.name == "ADSOY" && books.kind == FileKind::term)
                tell(row, u"ADSOY yok; öğrenci kartta gösterilemez"_s);
        }
    });
}

struct Moment {
    FileKind kind;
    std::string_view table, field;
    enum Form { date, date_or_blank, time } form;
};
// The times are those that the clock gives; the hours of a study session are the clerk's own.
constexpr Moment moments[] = {{FileKind::term, "Ogrenci", "KAYTAR", Moment::date_or_blank},
                              {FileKind::term, "Ogrenci", "AYTAR", Moment::date_or_blank},
                              {FileKind::term, "Ogrenci", "DOGTAR", Moment::date_or_blank},
                              {FileKind::term, "Ogrenci", "VERTAR", Moment::date_or_blank},
                              {FileKind::term, "Odeme", "VADE", Moment::date},
                              {FileKind::term, "Tahsilat", "VADE", Moment::date},
                              {FileKind::term, "Tahsilat", "TARIH", Moment::date},
                              {FileKind::term, "Tahsilat", "SAAT", Moment::time},
                              {FileKind::term, "Tahsilat", "FTAR", Moment::date_or_blank},
                              {FileKind::term, "Devam", "TARIH", Moment::date},
                              {FileKind::term, "EtudDevam", "TARIH", Moment::date},
                              {FileKind::term, "Dmazeret", "TARIH", Moment::date},
                              {FileKind::term, "Emazeret", "TARIH", Moment::date},
                              {FileKind::term, "Etud", "TARIH", Moment::date},
                              {FileKind::reference, "Kasa", "TARIH", Moment::date},
                              {FileKind::reference, "Kasa", "SAAT", Moment::time}};

bool is_moment(const QString& text, Moment::Form form) {
    if (form == Moment::date_or_blank && text.trimmed().isEmpty()) return true;
    return form == Moment::time ? QTime::fromString(text, u"HHmmss"_s).isValid() : dates::from_key(text).isValid();
}

void dates_that_are_none(Books& books, const Tell& tell) {
    for (const Moment& moment : moments) {
        if (moment.kind != books.kind) continue;
        Recordset rows = books.file.OpenRecordset(moment.table);
        store::scan_all(rows, [&] {
            const QString text = rows[moment.field].text();
            if (is_moment(text, moment.form)) return;
            const QString what = moment.form == Moment::time ? u"saat"_s : u"tarih"_s;
            tell(rows, u"%1 bir %2 değil: \"%3\""_s.arg(QLatin1StringView(moment.field), what, text));
        });
    }
}

// Whether a value that begins as RTF is one group from its first letter to its last.
bool is_whole_rtf(const QString& value) {
    qsizetype depth = 0;
    for (qsizetype at = 0; at < value.size(); ++at) {
        const QChar letter = value[at];
        if (letter == u'\\')
            ++at;  // the next letter means no group
        else if (letter == u'{')
            ++depth;
        else if (letter == u'}' && --depth == 0)
            return QStringView(value).mid(at + 1).trimmed().toString().remove(QChar()).isEmpty();
    }
    return false;
}

void unreadable_rich_text(Books& books, const Tell& tell) {
    each_row(books, [&](Recordset& row, const store::TableDef& table) {
        for (const store::FieldDef& field : table.fields) {
            if (field.type != store::FieldType::memo) continue;
            const QString value = row[field.name].text();
            if (value.startsWith(u"{\\rtf"_s) && !is_whole_rtf(value))
                tell(row, u"%1 okunamayan zengin metin; yarıda kesilmiş"_s.arg(name_of(field)));
        }
    });
}

void zero_counters(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term) return;
    for (const char* table : {"Devam", "EtudDevam"}) {
        Recordset rows = books.file.OpenRecordset(table);
        store::scan_all(rows, [&] {
            if (rows["IZINLI"].number() == 0 && rows["IZINSIZ"].number() == 0 && rows["RAPORLU"].number() == 0)
                tell(rows, u"üç sayaç da sıfır"_s);
        });
    }
}

void duplicate_keys_of(Recordset& rows, const store::IndexDef& index, const Tell& tell) {
    std::vector<store::Value> former, key;
    rows.Index(index.name);
    store::scan_all(rows, [&] {
        key.clear();
        for (const std::string& field : index.fields) key.push_back(rows[field].value());
        const auto same = [](const store::Value& a, const store::Value& b) { return store::compare_keys(a, b) == 0; };
        if (std::ranges::equal(key, former, same)) tell(rows, u"aynı anahtarla birden çok kayıt"_s);
        former.swap(key);
    });
}

// The engine keeps keys apart in files of ours; a file made elsewhere may lack that.
void duplicate_keys(Books& books, const Tell& tell) {
    for (const store::TableDef& table : store::catalogue(books.kind))
        for (const store::IndexDef& index : table.indexes) {
            if (!index.unique) continue;
            Recordset rows = books.file.OpenRecordset(table.name);
            duplicate_keys_of(rows, index, tell);
        }
}

struct ListField {
    std::string_view table, field;
    int entries;
};
constexpr ListField list_fields[] = {{"Ogrenci", "CINSIYET", 3}, {"Ogrenci", "KANGR", 5}, {"Ogrenci", "KANRH", 3},
                                     {"Ogrenci", "VERNEDEN", 3}, {"Ogrenci", "GRUP", 5},  {"Ogrenci", "BOLUM", 8},
                                     {"Ogrenci", "KALSEK", 4},   {"Ogrenci", "DIN", 14},  {"Odeme", "ODSEK", 7}};

void list_positions(Books& books, const Tell& tell) {
    if (books.kind != FileKind::term) return;
    for (const ListField& list : list_fields) {
        Recordset rows = books.file.OpenRecordset(list.table);
        store::scan_all(rows, [&] {
            const double position = rows[list.field].number();
            if (position < 0 || position >= list.entries)
                tell(rows, u"%1 listesinin dışında: %2"_s.arg(QLatin1StringView(list.field), rows[list.field].text()));
        });
    }
}

constexpr Check checks[] = {{true, empty_texts},   {true, dates_that_are_none}, {true, unreadable_rich_text},
                            {true, zero_counters}, {true, duplicate_keys},      {false, list_positions}};

}  // namespace

std::span<const Check> value_checks() {
    return checks;
}

}  // namespace audit
