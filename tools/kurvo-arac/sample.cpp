#include "sample.h"

#include "platform/text_file.h"
#include "sample_days.h"
#include "sample_lists.h"
#include "sample_money.h"
#include "sample_photo.h"
#include "sample_students.h"
#include "school.h"
#include "store/record.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace sample {
namespace {

constexpr int most_instalments = 12;
const QString none = u" "_s;

void add_price(store::Recordset& prices, const QString& kind, const QString& code, int amount, const QString& name) {
    prices.AddNew();
    prices["TUR"] = kind;
    prices["KOD"] = code;
    prices["DEGER"] = amount;
    prices["TANIM"] = name;
    prices.Update();
}

void write_prices(store::Recordset prices) {
    add_price(prices, u"0"_s, u"MTS"_s, most_instalments, none);
    for (const Fee& fee : fees) add_price(prices, u"1"_s, fee.choice, fee.amount, none);
    int number = 0;
    for (const Discount& discount : discounts)
        add_price(prices, u"2"_s, u"%1"_s.arg(++number, 2, 10, QChar(u'0')), discount.percent, discount.name);
}

void write_lessons(store::Recordset records) {
    for (const Lesson& lesson : lessons) {
        records.AddNew();
        records["KOD"] = lesson.code;
        records["TANIM"] = lesson.name;
        records.Update();
    }
}

void write_teachers(store::Recordset records) {
    int number = first_teacher;
    for (const QString& name : teachers) {
        records.AddNew();
        records["SICIL"] = number++;
        records["ADSOY"] = name;
        records.Update();
    }
}

void add_stop(store::Recordset& records, int route, int stop, const QString& text) {
    records.AddNew();
    records["SNO"] = route;
    records["DRK"] = stop;
    records["ACK"] = text;
    records.Update();
}

void write_routes(store::Recordset records) {
    int number = 0;
    for (const Route& route : routes) {
        add_stop(records, ++number, 0, route.heading);
        int stop = 0;
        for (const QString& text : route.stops) add_stop(records, number, ++stop, text);
    }
}

void write_learned_list(const QString& path, QStringList entries) {
    std::sort(entries.begin(), entries.end());
    text_file::write_lines(path, entries);
}

bool has_photo(const Student& student, const Scale& scale) {
    return student.index < scale.photos && student.index % 10 < 7;
}

QString photo_name(const QString& term, const Student& student) {
    return u"%1_%2.bmp"_s.arg(term, QString::number(student.number));
}

// The tables of a term while its rows are written.
struct TermTables {
    explicit TermTables(store::Database& term)
        : students(term.OpenRecordset("Ogrenci")),
          plans(term.OpenRecordset("Odeme")),
          paid(term.OpenRecordset("Tahsilat")),
          sessions(term.OpenRecordset("Etud")),
          of_class{term.OpenRecordset("Devam"), term.OpenRecordset("Dmazeret")},
          of_study{term.OpenRecordset("EtudDevam"), term.OpenRecordset("Emazeret")} {}

    store::Recordset students, plans, paid, sessions;
    AbsenceTables of_class, of_study;
};

void write_days(TermTables& tables, const Student& student, const SchoolYear& year, const Scale& scale,
                const std::vector<Session>& offered) {
    const int absences = scale.absences.value_or(usual_absences(student.random.split(10)));
    write_absences(tables.of_class, student, year, absences, student.random.split(7));
    write_absences(tables.of_study, student, year, absences / 6, student.random.split(8));
    write_sessions(tables.sessions, student, year, offered);
}

}  // namespace

SchoolYear school_year(const QString& term) {
    const auto digits = QRegularExpression(u"[0-9]{4}"_s).match(term);
    const int found = digits.captured().toInt();
    const int year = found >= 1950 && found <= 2150 ? found : 2026;
    return {QDate(year, 9, 14), QDate(year, 11, 20)};
}

void fill_reference(const QString& root) {
    store::Database reference = store::OpenDatabase(school::reference_file(root));
    store::WriteScope scope(reference);
    write_lessons(reference.OpenRecordset("Ders"));
    write_teachers(reference.OpenRecordset("Ogretmen"));
    write_prices(reference.OpenRecordset("Fiyat"));
    write_routes(reference.OpenRecordset("Servis"));
    scope.commit();
    school::set_user(root, user_code, u"1011"_s);
    text_file::write_lines(school::data_file(root, u"KasaTip.txt"_s), cash_types);
    write_learned_list(school::data_file(root, u"okullar.txt"_s), schools);
    write_learned_list(school::data_file(root, u"OzelKod.txt"_s), special_codes);
}

void fill_term(const QString& root, const QString& term, std::uint64_t seed, const Scale& scale) {
    Random random(seed);
    for (const QChar letter : term) random = random.split(letter.unicode());
    const SchoolYear year = school_year(term);
    const std::vector<Session> offered = draw_sessions(year, scale.students, random.split(2'000'000'001));
    store::Database file = store::OpenDatabase(school::term_file(root, term));
    store::Database reference = store::OpenDatabase(school::reference_file(root));
    TermTables tables(file);
    store::WriteScope scope(file);
    store::Recordset classes = file.OpenRecordset("Sinif");
    write_classes(classes, scale.students);
    std::vector<Collection> collections;
    for (int i = 0; i < scale.students; ++i) {
        const Student student = draw_student(i, year, random, scale.students);
        const bool pictured = has_photo(student, scale);
        const QString photo = pictured ? photo_name(term, student) : QString();
        if (pictured) draw_photo(school::photo_folder(root) + photo, student.girl, student.random.split(11));
        write_student(tables.students, student, photo);
        std::vector<Instalment> plan = draw_plan(student, scale);
        for (Collection& collection : draw_collections(student, term, plan))
            collections.push_back(std::move(collection));
        write_plan(tables.plans, student, plan);
        write_days(tables, student, year, scale, offered);
    }
    write_collections(reference, tables.paid, std::move(collections), random.split(2'000'000'002));
    scope.commit();
}

}  // namespace sample
