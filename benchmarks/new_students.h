// Students of a workbook, and the raw rows that an import of them leaves.
#pragma once

#include "raw_store.h"

#include <QStringList>

#include <vector>

namespace bench::new_students {

// A term of their own.
inline const QString term = QStringLiteral("2031");
inline const QString term_file = QStringLiteral("c:\\okul\\data\\2031ogr.mdb");

// Ten texts each, in the order of the import panel's boxes.
std::vector<QStringList> rows(int count);
void write_csv(const std::vector<QStringList>& rows, const QString& native_file);

// Each number looked for before it is written, every field filled, each class group looked for, a commit as often as
// the import makes one.
class BareWriter {
public:
    BareWriter();
    void write(const std::vector<QStringList>& rows);
    void empty();  // both tables

private:
    void add(const QStringList& row);
    void add_class(const std::string& class_group);

    RawFile term_{term_file};
    RawStatement student_ = term_.prepare("SELECT rowid FROM Ogrenci WHERE ONO=?");
    RawStatement class_ = term_.prepare("SELECT rowid FROM Sinif WHERE SINIF=?");
    RawStatement add_class_ = term_.prepare("INSERT INTO Sinif (SINIF, ACK, KAPASITE) VALUES (?,' ',0)");
    RawStatement add_student_;
    std::vector<bool> is_text_;  // of each column
    std::string no_text_;        // RTF of an empty text
};

}  // namespace bench::new_students
