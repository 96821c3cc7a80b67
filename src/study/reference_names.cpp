#include "study/reference_names.h"

ReferenceNames::ReferenceNames(const QString& file)
    : reference_(store::OpenDatabase(file)),
      lessons_{reference_.OpenRecordset("Ders"), "TANIM"},
      teachers_{reference_.OpenRecordset("Ogretmen"), "ADSOY"} {
    lessons_.records.Index("KODX");
    teachers_.records.Index("SICILX");
}

QString ReferenceNames::name(Table& table, const store::Value& key) {
    const QString code = key.text();
    const auto known = table.known.constFind(code);
    if (known != table.known.cend()) return *known;
    table.records.Seek("=", {key});
    return *table.known.insert(code, table.records.NoMatch() ? code : table.records[table.field].text());
}
