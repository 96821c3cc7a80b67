#include "register/imported_student.h"

#include "platform/numbers.h"
#include "session/blank_text.h"

namespace {

constexpr qsizetype name_length = 25, telephone_length = 13;
constexpr double last_grade = 13, no_grade = -1;

QString or_blank_trimmed(const QString& text) {
    return text.trimmed().isEmpty() ? QStringLiteral(" ") : text;
}

// Points and commas stay, and any number of digits that fits is taken.
QString telephone_of(QString text) {
    if (text.startsWith(u'0')) text.remove(0, 1);
    text.remove(u' ');
    return text.size() > telephone_length ? QStringLiteral(" ") : or_blank(text);
}

// The list of grades begins at the first class.
double grade_of(const QString& class_group) {
    const double grade = numbers::val(class_group) - 1;
    return grade > last_grade || grade < no_grade ? 0 : grade;
}

}  // namespace

QString ImportedStudent::full_name(const QString& separator) const {
    QString name = last_name.isEmpty() ? first_name : first_name + separator + last_name;
    name.truncate(name_length);
    for (QChar& letter : name) letter = letter.toUpper();
    return name;
}

QString ImportRows::cell(int row, ImportColumns::Box box) const {
    return columns_[box] == 0 ? QString() : book_.text(row, columns_[box]);
}

ImportedStudent ImportRows::read(int row) {
    using Box = ImportColumns::Box;
    ImportedStudent student;
    student.number = numbers::val(cell(row, Box::number));
    if (student.number == 0) return student;
    student.first_name = cell(row, Box::first_name);
    student.last_name = cell(row, Box::last_name);
    const QString sex = cell(row, Box::sex);
    if (sex.startsWith(u'E')) sex_ = 1;
    if (sex.startsWith(u'K')) sex_ = 2;
    student.sex = sex_;
    if (columns_[Box::class_group] != 0) {
        const QString class_group = cell(row, Box::class_group);
        student.class_group = or_blank_trimmed(class_group);
        student.grade = grade_of(class_group);
    }
    student.referrer = or_blank_trimmed(cell(row, Box::referrer));
    student.school = or_blank_trimmed(cell(row, Box::school));
    student.note = or_blank(cell(row, Box::note));
    student.telephone = telephone_of(cell(row, Box::telephone));
    student.guardian_telephone = telephone_of(cell(row, Box::guardian_telephone));
    return student;
}
