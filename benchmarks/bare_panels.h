// The overview's attendance and session tabs and the day board, read raw and set in ordinary tables.
#pragma once

#include "bare_table.h"
#include "raw_store.h"

#include <QLabel>

#include <array>
#include <unordered_map>

namespace bench {

// The names as the panels ask for them: the reference file opened anew, each code sought once.
class RawNames {
public:
    RawNames();
    const std::string& lesson(const std::string& code);
    const std::string& teacher(double number);

private:
    RawFile reference_;
    RawStatement lessons_ = reference_.prepare("SELECT TANIM FROM Ders WHERE KOD=?");
    RawStatement teachers_ = reference_.prepare("SELECT ADSOY FROM Ogretmen WHERE SICIL=?");
    std::unordered_map<std::string, std::string> known_lessons_;
    std::unordered_map<double, std::string> known_teachers_;
};

class BareAbsences {
public:
    BareAbsences();
    void fill(double student);

private:
    using Hours = std::array<double, 3>;

    struct Tab {
        Tab(RawFile& term, const char* absences, const char* excuses);
        void fill(double student, const std::vector<std::array<std::string, 2>>& taught);

        RawStatement absences, excuses;
        BareTable lessons{5}, days{6};
        std::array<QLabel, 3> totals;
    };

    RawFile term_;
    std::vector<std::array<std::string, 2>> taught_;  // code and name
    Tab class_, study_;
};

class BareSessions {
public:
    BareSessions();
    void fill(double student);

private:
    RawFile term_;
    RawStatement sessions_ = term_.prepare(
        "SELECT TARIH, SAAT, BITSAAT, KOD, SICIL, GIRDI, KONU FROM Etud INDEXED BY \"Etud.OTSX\" "
        "WHERE ONO=? ORDER BY TARIH, SAAT");
    std::vector<std::string> taught_;  // codes
    BareTable lessons_{4}, records_{6};
};

// Folds the sessions of a day in a scratch file, reads them back by the key and removes the file.
class BareBoard {
public:
    BareBoard();
    void fill(const std::string& day);

private:
    void fold(RawFile& scratch, const std::string& day);
    void show(RawFile& scratch);

    RawFile term_;
    RawStatement sessions_ = term_.prepare(
        "SELECT SAAT, BITSAAT, KOD, SICIL, KONU FROM Etud INDEXED BY \"Etud.TSX\" WHERE TARIH=? ORDER BY SAAT, rowid");
    BareTable board_{6};
};

}  // namespace bench
