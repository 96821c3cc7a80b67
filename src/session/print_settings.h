// The settings of the invoice printer, under the names of the hidden controls that used to hold them.
#pragma once

#include <QString>

#include <array>

// Read from data\Fatura.txt at start-up; texts as they stand in the file.
struct PrintSettings {
    static constexpr int letters = 12;
    static constexpr int layout_room = 16;

    int OptPrn = 0;  // 0 matrix, 1 laser
    QString KSAY;    // invoice copies
    int KDVc = 0;    // 1: the collected amount includes VAT
    QString KDVZ;    // VAT rate in percent

    // The letter and the code that a matrix printer is sent for it.
    std::array<QString, letters> fkrk{"Ğ", "ğ", "Ü", "ü", "Ş", "ş", "İ", "ı", "Ö", "ö", "Ç", "ç"};
    std::array<QString, letters> krk{"208", "240", "220", "252", "222", "254",
                                     "221", "253", "214", "246", "199", "231"};

    // A layout item: one blank and the field's code, its line, its column and its second column.
    std::array<QString, layout_room> flbl, yy, xx, aa;
    int layoutCount = 0;                        // items in use, from index 0
    std::array<int, layout_room> layoutLine{};  // line of the file that each of them stands on
};
