#include "new_students.h"

#include "platform/rich_text.h"
#include "store/catalogue.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <utility>

namespace bench::new_students {

namespace {

constexpr double first_number = 900'001;
// As the import pauses, for the other workstations.
constexpr auto longest_hold = std::chrono::milliseconds(400), pause = std::chrono::milliseconds(2);

enum Column { first_name, last_name, number, class_group, referrer, school, sex, note, telephone, guardian_telephone };

const store::TableDef& students_table() {
    for (const store::TableDef& table : store::catalogue(store::FileKind::term))
        if (table.name == "Ogrenci") return table;
    throw std::runtime_error("a term has no students");
}

int place_of(std::string_view field) {
    const auto& fields = students_table().fields;
    const auto found = std::ranges::find(fields, field, &store::FieldDef::name);
    return static_cast<int>(found - fields.begin()) + 1;
}

std::string insert_sql() {
    std::string marks = "?";
    for (std::size_t i = 1; i < students_table().fields.size(); ++i) marks += ",?";
    return "INSERT INTO Ogrenci VALUES (" + marks + ")";
}

}  // namespace

std::vector<QStringList> rows(int count) {
    std::vector<QStringList> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back({QStringLiteral("AYŞE NUR"), QStringLiteral("YILDIRIM"),
                        QString::number(first_number + i, 'f', 0), QString::number(9 + i % 4) + QChar(u'A' + i % 6),
                        QStringLiteral("KAYIT %1").arg(i % 50), QStringLiteral("%1. YIL ORTAOKULU").arg(i % 90),
                        i % 2 == 0 ? QStringLiteral("E") : QStringLiteral("K"),
                        QStringLiteral("%1. sıradaki öğrenci").arg(i), QStringLiteral("0212 %1").arg(1'000'000 + i),
                        QStringLiteral("0532 %1").arg(1'000'000 + i)});
    return rows;
}

void write_csv(const std::vector<QStringList>& rows, const QString& native_file) {
    QFile file(native_file);
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("the list of students cannot be written");
    for (const QStringList& row : rows) file.write(row.join(u';').toUtf8() + "\r\n");
}

BareWriter::BareWriter()
    : add_student_(term_.prepare(insert_sql().c_str())), no_text_(rich_text::from_plain({}).toStdString()) {
    for (const store::FieldDef& field : students_table().fields)
        is_text_.push_back(field.type == store::FieldType::text || field.type == store::FieldType::memo);
}

void BareWriter::write(const std::vector<QStringList>& rows) {
    using Clock = std::chrono::steady_clock;
    term_.run("BEGIN IMMEDIATE");
    auto since = Clock::now();
    for (const QStringList& row : rows) {
        add(row);
        if (Clock::now() - since < longest_hold) continue;
        term_.run("COMMIT");
        std::this_thread::sleep_for(pause);
        term_.run("BEGIN IMMEDIATE");
        since = Clock::now();
    }
    term_.run("COMMIT");
}

void BareWriter::empty() {
    term_.run("BEGIN IMMEDIATE; DELETE FROM Ogrenci; DELETE FROM Sinif; COMMIT");
}

void BareWriter::add(const QStringList& row) {
    static const std::pair<int, Column> from_workbook[] = {
        {place_of("ADSOY"), first_name},       {place_of("SINIF"), class_group}, {place_of("REFERANS"), referrer},
        {place_of("GELOKUL"), school},         {place_of("ACK"), note},          {place_of("TEL"), telephone},
        {place_of("VGSM"), guardian_telephone}};
    static const int number_place = place_of("ONO"), rich[] = {place_of("RESIM"), place_of("VMAIL")};
    static const int days[] = {place_of("KAYTAR"), place_of("AYTAR"), place_of("DOGTAR"), place_of("VERTAR")};
    const double student = row[number].toDouble();
    student_.bind(1, student).run();
    int place = 1;
    for (const bool text : is_text_) text ? add_student_.bind(place++, " ") : add_student_.bind(place++, 0);
    for (const auto& [field, column] : from_workbook) add_student_.bind(field, row[column].toStdString());
    for (const int field : rich) add_student_.bind(field, no_text_);
    for (const int field : days) add_student_.bind(field, "20261124");
    add_student_.bind(number_place, student).run();
    add_class(row[class_group].toStdString());
}

void BareWriter::add_class(const std::string& name) {
    const bool is_new = !class_.bind(1, name).step();
    class_.reset();
    if (is_new) add_class_.bind(1, name).run();
}

}  // namespace bench::new_students
