// What a row of a workbook says about a new student.
#pragma once

#include "platform/workbook.h"

#include <array>

// The workbook's columns, counted from 1, in the order of the boxes bas(0) to bas(9); 0 where it has no such column.
struct ImportColumns {
    enum Box { first_name, last_name, number, class_group, referrer, school, sex, note, telephone, guardian_telephone };
    std::array<int, 10> of_box{};

    int operator[](Box box) const { return of_box[static_cast<std::size_t>(box)]; }
};

struct ImportedStudent {
    double number = 0;
    QString first_name, last_name;  // as they stand
    // One blank each where nothing stands.
    QString class_group = QStringLiteral(" "), referrer, school, note, telephone, guardian_telephone;
    double grade = 0;  // position in the list of grades; -1 for a class that does not begin with a digit
    int sex = 0;       // position in its list

    // Both names with `separator` between them, cut to the length of the field and in capitals; "i" becomes "I".
    QString full_name(const QString& separator) const;
};

// Reads row after row.
class ImportRows {
public:
    ImportRows(const Workbook& book, const ImportColumns& columns) : book_(book), columns_(columns) {}

    // All else stays untold where the number is 0: the row is not read further.
    ImportedStudent read(int row);

private:
    // Nothing where the workbook has no such column.
    QString cell(int row, ImportColumns::Box box) const;

    const Workbook& book_;
    const ImportColumns columns_;
    int sex_ = 0;  // a row that does not tell it repeats the row before
};
