// The sessions of one day, those that several students share folded into one row.
#pragma once

#include "store/record.h"

#include <array>
#include <vector>

// Folds in the table Kayit of c:\qlm\siletud.mdb, whose key is start, end, lesson and teacher. The file lives exactly
// as long as the object, also when something fails meanwhile.
class ScratchBoard {
public:
    // Throws where such a file lies there already.
    ScratchBoard();

    // Counts the student of the current row of Etud in. The topic of a session is that of its first student.
    void add(store::Recordset& etud);

    // Writes what has been counted and gives all rows, to be walked in the order of the key.
    store::Recordset& rows();

private:
    // Made before the database and gone after it, since an open file cannot be removed everywhere.
    class Place {
    public:
        Place();
        ~Place();
        Place(const Place&) = delete;
        Place& operator=(const Place&) = delete;
    };

    struct Session {
        std::array<store::Value, 4> key;
        store::Value topic;
        int students;
    };

    void write(const Session& session);

    Place place_;
    store::Database database_;
    store::WriteScope scope_;  // never committed: nothing outlives the file
    store::Recordset kayit_;
    std::vector<Session> counted_;  // not written yet
};
