// The active sheet of a workbook that a clerk has got from elsewhere: .xlsx, .ods, .xls or .csv.
#pragma once

#include "platform/workbook_sheet.h"

#include <QString>

#include <vector>

// Cells are plain texts: a number without exponent, with at most 15 significant digits and a point before its decimals;
// a text as it stands, whatever it looks like; a formula by its stored result; a date by its number of days; "DOĞRU"
// and "YANLIŞ"; an error by its sign ("#DIV/0!").
class Workbook {
public:
    // Reads the whole active sheet. The content decides what kind of file it is, not the name (an office name as in
    // paths.h). Throws std::runtime_error, in Turkish and naming the file, for one that cannot be read, is no workbook,
    // is damaged or cut, asks for a password, or unpacks to more than a workstation should hold.
    static Workbook open(const QString& name);

    // Counted from 1. Empty where nothing stands, also outside of the sheet.
    QString text(int row, int column) const;
    int rows() const;  // the last one that holds anything; 0 for an empty sheet

private:
    explicit Workbook(workbook::Table table);

    workbook::Table table_;
    std::vector<std::uint32_t> first_cells_;  // of each row, by its number, and the end
};
