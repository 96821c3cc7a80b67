#include "store/catalogue.h"

#include <algorithm>
#include <stdexcept>

namespace store {

namespace {

FieldDef text(std::string name, int size = 0) {
    return {std::move(name), FieldType::text, size};
}
FieldDef memo(std::string name) {
    return {std::move(name), FieldType::memo};
}
FieldDef integer(std::string name) {
    return {std::move(name), FieldType::integer};
}
FieldDef long_integer(std::string name) {
    return {std::move(name), FieldType::long_integer};
}
FieldDef number(std::string name) {
    return {std::move(name), FieldType::number};
}

IndexDef primary(std::string name, std::vector<std::string> fields) {
    return {std::move(name), std::move(fields), true, true};
}
IndexDef primary_with_equals(std::string name, std::vector<std::string> fields) {
    return {std::move(name), std::move(fields), false, true};
}
IndexDef further_with_equals(std::string name, std::vector<std::string> fields) {
    return {std::move(name), std::move(fields), false, false};
}

// In the order in which a new row is filled.
TableDef student_table() {
    return {
        "Ogrenci",
        {number("ONO"),       text("ADSOY", 25),     text("SINIF", 4),     text("ADRES1", 35),   text("ADRES2", 35),
         text("AILCE", 13),   text("AIL", 13),       text("TEL", 13),      integer("CINSIYET"),  integer("KANGR"),
         integer("KANRH"),    memo("RESIM"),         text("ACK", 50),      text("KAYTAR", 8),    text("GELOKUL", 40),
         text("OKULNO"),      integer("GRUP"),       text("BOLUM", 1),     integer("KALSEK"),    integer("DIN"),
         text("VELI", 25),    text("VYAKINLIK", 25), text("VTCNO", 13),    text("VTEL", 13),     text("VGSM", 13),
         memo("VMAIL"),       text("AYTAR", 8),      text("AYYER", 25),    text("NCSNO", 13),    text("VATNO", 13),
         text("DOGYER", 13),  text("DOGTAR", 8),     text("IL", 13),       text("ILCE", 13),     text("KOY", 13),
         text("CILT", 8),     text("HANE", 8),       text("SIRA", 8),      text("VERYER", 13),   integer("VERNEDEN"),
         text("VERTAR", 8),   text("KAYNO", 8),      text("ANNE", 20),     text("AMESLEK", 20),  text("AOKUL", 20),
         text("AISYERI", 25), text("AISADRES", 50),  text("AISTEL", 13),   text("AEVTEL", 13),   text("AGSMTEL", 13),
         text("BABA", 20),    text("BMESLEK", 20),   text("BOKUL", 20),    text("BISYERI", 25),  text("BISADRES", 50),
         text("BISTEL", 13),  text("BEVTEL", 13),    text("BGSMTEL", 13),  integer("AYRI"),      number("KRDSAY"),
         text("SAVBEL", 1),   integer("SAKLA"),      memo("NOT"),          text("OZELKOD", 3),   number("ORT9"),
         number("ORT10"),     number("ORT11"),       number("ORT12"),      text("REFERANS", 20), text("USER"),
         number("KTUTAR"),    number("ISKONTO"),     text("VISVEREN", 25), text("VIVUNVAN", 40), text("VISADRES", 70),
         text("VISTEL", 11),  text("VISGIRTAR", 10), text("VISAYTAR", 10), text("NOT1"),         text("NOT2"),
         text("DTABLO"),      number("AYAKKABI"),    text("BEDEN", 5),     number("SERVISNO"),   number("DURAKNO")},
        {primary("ONOX", {"ONO"})}};
}

TableDef absences(std::string name) {
    return {std::move(name),
            {number("ONO"), text("TARIH", 8), text("DKOD", 2), number("IZINLI"), number("IZINSIZ"), number("RAPORLU")},
            {primary("OTDX", {"ONO", "TARIH", "DKOD"})}};
}

TableDef excuses(std::string name) {
    return {std::move(name), {number("ONO"), text("TARIH", 8), memo("ACK")}, {primary("OTX", {"ONO", "TARIH"})}};
}

std::vector<TableDef> term_tables() {
    return {student_table(),
            {"Sinif", {text("SINIF", 4), text("ACK"), integer("KAPASITE")}, {primary("SINIFX", {"SINIF"})}},
            {"Odeme",
             {number("ONO"), text("VADE", 8), number("TUTAR"), number("ODENEN"), text("ACK"), integer("ODSEK"),
              text("CYER")},
             {primary("OVX", {"ONO", "VADE"})}},
            {"Tahsilat",
             {number("ONO"), text("VADE", 8), text("TARIH", 8), text("SAAT", 6), number("ODENEN"), text("KSAAT", 6),
              text("KASAFNO"), text("BTIP", 1), text("BNO"), text("FTAR", 8), text("FNO")},
             {primary("OVTX", {"ONO", "VADE", "TARIH", "SAAT"})}},
            absences("Devam"),
            absences("EtudDevam"),
            excuses("Dmazeret"),
            excuses("Emazeret"),
            {"Etud",
             {number("ONO"), text("TARIH", 8), text("SAAT", 4), text("BITSAAT", 4), text("KOD", 2), number("SICIL"),
              text("GIRDI", 1), text("KONU", 50)},
             {primary("OTSX", {"ONO", "TARIH", "SAAT"}), further_with_equals("TSX", {"TARIH", "SAAT"})}}};
}

std::vector<TableDef> reference_tables() {
    return {{"Ders", {text("KOD", 2), text("TANIM")}, {primary("KODX", {"KOD"})}},
            {"Ogretmen", {long_integer("SICIL"), text("ADSOY")}, {primary("SICILX", {"SICIL"})}},
            // The key is kind and code: limits "0", fees "1", discounts "2".
            {"Fiyat", {text("TUR"), text("KOD"), number("DEGER"), text("TANIM")}, {primary("KODX", {"TUR", "KOD"})}},
            {"Servis", {number("SNO"), number("DRK"), text("ACK")}, {primary_with_equals("SX", {"SNO"})}},
            {"Dtablo", {text("KOD"), text("ACK")}, {primary("KODX", {"KOD"})}},
            {"Belgeno", {text("SERI", 1), number("SNO")}, {primary("SERIX", {"SERI"})}},
            {"Kasa",
             {text("TARIH", 8), text("SAAT", 6), text("ACK"), number("TUTAR"), text("AE", 1), text("KOD"), text("TIP")},
             {primary("TSX", {"TARIH", "SAAT"})}}};
}

}  // namespace

const std::vector<TableDef>& catalogue(FileKind kind) {
    static const std::vector<TableDef> term = term_tables();
    static const std::vector<TableDef> reference = reference_tables();
    static const std::vector<TableDef> version = {{"SBtab", {text("KOD"), memo("SB1")}, {primary("X1", {"KOD"})}}};
    static const std::vector<TableDef> users = {{"users", {text("KOD"), memo("DKOD")}, {primary("KX", {"KOD"})}}};
    static const std::vector<TableDef> programs = {{"prg", {text("KOD")}, {primary("PX", {"KOD"})}}};
    switch (kind) {
        case FileKind::term:
            return term;
        case FileKind::reference:
            return reference;
        case FileKind::version:
            return version;
        case FileKind::users:
            return users;
        case FileKind::programs:
            return programs;
    }
    throw std::logic_error("unknown kind of file");
}

const TableDef& table_of(FileKind kind, std::string_view name) {
    const auto& tables = catalogue(kind);
    const auto found = std::ranges::find(tables, name, &TableDef::name);
    if (found == tables.end()) throw std::runtime_error("Tablo tanımlı değil: " + std::string(name));
    return *found;
}

const TableDef& scratch_table() {
    static const TableDef table = {
        "Kayit",
        {text("SAAT", 4), text("BITSAAT", 4), text("KOD", 2), long_integer("SICIL"), integer("SAY"), text("KONU", 50)},
        {primary("TX", {"SAAT", "BITSAAT", "KOD", "SICIL"})}};
    return table;
}

}  // namespace store
