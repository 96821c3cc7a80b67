// The sessions of one day, those that several students share folded into one row.
#pragma once

#include "store/record.h"

// Folds in the table Kayit of c:\qlm\siletud.mdb, whose key is start, end, lesson and teacher. The file lives exactly
// as long as the object, also when something fails meanwhile.
class ScratchBoard {
public:
    // Throws where such a file lies there already.
    ScratchBoard();

    // Counts the student of the current row of Etud in. The topic of a session is that of its first student.
    void add(store::Recordset& etud);

    // All rows, to be walked in the order of the key.
    store::Recordset& rows() { return kayit_; }

private:
    // Made before the database and gone after it, since an open file cannot be removed everywhere.
    class Place {
    public:
        Place();
        ~Place();
        Place(const Place&) = delete;
        Place& operator=(const Place&) = delete;
    };

    Place place_;
    store::Database database_;
    store::WriteScope scope_;  // never committed: nothing outlives the file
    store::Recordset kayit_;
};
