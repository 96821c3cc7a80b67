#include "sample_students.h"

#include "platform/clock.h"
#include "platform/rich_text.h"
#include "sample_lists.h"
#include "store/conversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sample {
namespace {

constexpr int first_number = 1001;
constexpr int class_size = 22;
constexpr int class_places = 24;
constexpr int longest_name = 25;
constexpr int longest_parent = 20;
const QString letters = u"ABCDEFGHIKLMNPRSTUVYZ"_s;
const QString none = u" "_s;

// A class code has four characters at most: the grade and one letter, in a large school two.
int class_count(int students) {
    const auto size = static_cast<int>(letters.size());
    const int most = static_cast<int>(grades.size()) * (size + size * size);
    return std::clamp((students + class_size - 1) / class_size, 1, most);
}

int grade_of_class(int index) {
    return index % static_cast<int>(grades.size());
}

QString class_code(int index) {
    const auto size = static_cast<int>(letters.size());
    const int serial = index / static_cast<int>(grades.size());
    const QString& prefix = grades[static_cast<std::size_t>(grade_of_class(index))].prefix;
    if (serial < size) return prefix + letters[serial];
    const int pair = serial - size;
    return prefix + letters[pair / size % size] + letters[pair % size];
}

QString full_name(Random& random, const QStringList& given, const QString& surname) {
    const QString& first = random.pick(given);
    const QString& second = random.pick(given);
    const QString both = first + u' ' + second + u' ' + surname;
    const bool takes_both = random.chance(25) && first != second && both.size() <= longest_name;
    return takes_both ? both : first + u' ' + surname;
}

QString parent_name(Random& random, const QStringList& given, const QString& surname) {
    return (random.pick(given) + u' ' + surname).left(longest_parent).trimmed();
}

QString mobile(Random& random) {
    return u"53"_s + random.digits(8);
}
QString home_telephone(Random& random) {
    return u"2242"_s + random.digits(6);
}

// Eleven digits that are nobody's: the last one is odd, a real number's is even.
QString identity_number(Random& random) {
    return QString::number(random.between(1, 9)) + random.digits(9) + QChar(u'1' + 2 * random.below(5));
}

QDate day_between(Random& random, const QDate& first, const QDate& last) {
    return first.addDays(random.below(static_cast<int>(first.daysTo(last)) + 1));
}

QString note(Random& random, const QDate& day) {
    const QString& text = random.pick(notes);
    if (random.chance(60)) return rich_text::from_plain(dates::shown(day) + u' ' + text);
    // One with formatting: the date bold and red.
    QString escaped;
    for (const QChar letter : text)
        escaped += letter.unicode() < 128 ? QString(letter) : u"\\u%1?"_s.arg(letter.unicode());
    return u"{\\rtf1\\ansi\\ansicpg1254\\deff0{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red192\\green0\\blue0;}"
           "\\f0\\fs20\\b\\cf1 %1\\b0\\cf0  %2\\par}"_s.arg(dates::shown(day), escaped);
}

void write_register(store::Recordset& row, const Student& student, Random random) {
    row["ONO"] = student.number;
    row["ADSOY"] = student.name;
    row["SINIF"] = student.class_code;
    row["CINSIYET"] = student.girl ? 2 : 1;
    row["KANGR"] = random.below(5);
    row["KANRH"] = random.below(3);
    row["KAYTAR"] = dates::key(student.registered);
    row["GELOKUL"] = random.pick(schools);
    row["OKULNO"] = QString::number(random.between(10, 1999));
    row["GRUP"] = (student.weekend ? 2 : 1) + 2 * random.below(2);
    row["BOLUM"] = QString::number(student.track);
    row["KALSEK"] = random.below(4);
    row["DIN"] = grades[static_cast<std::size_t>(student.grade)].position;
    row["AYTAR"] = student.left ? dates::key(student.last_day) : u"20000101"_s;
    if (student.left) row["AYYER"] = random.pick(leaving_reasons);
    if (random.chance(10)) row["ACK"] = random.pick(reminders);
    if (student.fee == 0)
        row["OZELKOD"] = special_codes.first();
    else if (random.chance(15))
        row["OZELKOD"] = random.pick(special_codes);
    if (random.chance(30)) row["REFERANS"] = random.pick(referrers);
    row["SAKLA"] = student.hidden ? 1 : 0;
    row["USER"] = user_code;
    row["KTUTAR"] = student.fee;
    row["ISKONTO"] = student.discount;
    for (const char* score : {"ORT9", "ORT10", "ORT11", "ORT12"}) row[score] = random.below(161) * 0.25;
    row["AYAKKABI"] = random.between(35, 45);
    row["BEDEN"] = random.pick({u"S"_s, u"M"_s, u"L"_s, u"XL"_s});
    if (random.chance(30)) {
        const int route = random.below(static_cast<int>(routes.size()));
        row["SERVISNO"] = route + 1;
        row["DURAKNO"] = 1 + random.below(static_cast<int>(routes[static_cast<std::size_t>(route)].stops.size()));
    }
    if (random.chance(25)) row["NOT"] = note(random, day_between(random, student.registered, student.last_day));
}

void write_identity(store::Recordset& row, const Student& student, Random random) {
    const int born = student.registered.year() - grades[static_cast<std::size_t>(student.grade)].age;
    row["VATNO"] = identity_number(random);
    row["NCSNO"] = u"A%1"_s.arg(random.digits(8));
    row["DOGYER"] = u"BURSA"_s;
    row["DOGTAR"] = dates::key(day_between(random, QDate(born, 1, 1), QDate(born, 12, 28)));
    row["IL"] = u"BURSA"_s;
    row["ILCE"] = random.pick(districts);
    row["KOY"] = u"MERKEZ MAH."_s;
    row["CILT"] = QString::number(random.between(1, 99));
    row["HANE"] = QString::number(random.between(1, 400));
    row["SIRA"] = QString::number(random.between(1, 60));
    row["VERYER"] = random.pick(districts);
    row["VERNEDEN"] = 1 + random.below(2);
    row["VERTAR"] = dates::key(day_between(random, QDate(born + 7, 1, 1), QDate(born + 12, 12, 28)));
    row["KAYNO"] = QString::number(random.between(100, 9999));
}

void write_family(store::Recordset& row, const Student& student, Random random) {
    const QString surname = student.name.section(u' ', -1);
    const QString mother = parent_name(random, women, surname);
    const QString father = parent_name(random, men, surname);
    const bool guardian_is_mother = random.chance(40);
    row["TEL"] = mobile(random);
    row["ADRES1"] = random.pick(streets);
    row["ADRES2"] = u"NO:%1 D:%2"_s.arg(random.between(1, 120)).arg(random.between(1, 24));
    row["AILCE"] = random.pick(districts);
    row["AIL"] = u"BURSA"_s;
    row["ANNE"] = mother;
    row["AMESLEK"] = random.pick(occupations);
    row["AEVTEL"] = home_telephone(random);
    row["AGSMTEL"] = mobile(random);
    row["BABA"] = father;
    row["BMESLEK"] = random.pick(occupations);
    row["BEVTEL"] = home_telephone(random);
    row["BGSMTEL"] = mobile(random);
    row["AYRI"] = random.chance(8) ? 1 : 0;
    row["KRDSAY"] = random.below(4);
    row["VELI"] = guardian_is_mother ? mother : father;
    row["VYAKINLIK"] = guardian_is_mother ? u"ANNE"_s : u"BABA"_s;
    row["VTCNO"] = identity_number(random);
    row["VTEL"] = home_telephone(random);
    row["VGSM"] = mobile(random);
    row["VMAIL"] = rich_text::from_plain(random.chance(40) ? u"veli%1@ornek.com.tr"_s.arg(student.number) : none);
}

// Rows hold one blank where a text is empty.
void write_blanks(store::Recordset& row) {
    for (const store::FieldDef& field : row.definition().fields) {
        row[field.name] = store::is_text(field.type) ? store::Value(none) : store::Value(0);
    }
    row["SAVBEL"] = u"0"_s;
}

}  // namespace

Student draw_student(int index, const SchoolYear& year, const Random& random, int students) {
    Student student;
    student.index = index;
    student.random = random.split(static_cast<std::uint64_t>(index) + 1);
    Random own = student.random.split(1);
    // A number here and there is free, as after a deletion.
    student.number = first_number + index + index / 37;
    student.girl = own.chance(50);
    student.name = full_name(own, student.girl ? girls : boys, own.pick(surnames));
    const int of_class = own.below(class_count(students));
    student.class_code = class_code(of_class);
    student.grade = grade_of_class(of_class);
    student.weekend = own.chance(30);
    student.hidden = index % 40 == 13;
    student.left = index % 33 == 20;
    student.debts_cancelled = student.left && index % 2 == 0;
    student.registered = day_between(own, QDate(year.begin.year(), 6, 10), year.begin);
    student.last_day = student.left ? day_between(own, year.begin.addDays(20), year.today) : year.today;
    const Grade& grade = grades[static_cast<std::size_t>(student.grade)];
    if (grade.has_track) student.track = own.between(1, grade.age == 18 ? 7 : 4);
    student.fee = index % 50 == 31 ? 0 : fee_of(student.track > 0 ? tracks.at(student.track) : grade.choice);
    if (student.fee > 0 && own.chance(35))
        student.discount = discounts[static_cast<std::size_t>(own.below(static_cast<int>(discounts.size())))].percent;
    return student;
}

void write_student(store::Recordset& records, const Student& student, const QString& photo) {
    records.AddNew();
    write_blanks(records);
    write_register(records, student, student.random.split(2));
    write_identity(records, student, student.random.split(3));
    write_family(records, student, student.random.split(4));
    records["RESIM"] = rich_text::from_plain(photo);
    records.Update();
}

void write_classes(store::Recordset& classes, int students) {
    for (int i = 0; i < class_count(students); ++i) {
        const Grade& grade = grades[static_cast<std::size_t>(grade_of_class(i))];
        classes.AddNew();
        classes["SINIF"] = class_code(i);
        classes["ACK"] = grade.choice + u" grubu"_s;
        classes["KAPASITE"] = class_places;
        classes.Update();
    }
}

}  // namespace sample
