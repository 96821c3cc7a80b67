// What lives for one session: the values of the launcher and of the user, and the open term.
#pragma once

#include "session/print_settings.h"
#include "session/reference_lists.h"
#include "store/record.h"

#include <QString>

#include <cstdint>

// Read and written directly by all handlers. Texts unless the type says otherwise.
struct SessionContext {
    QString versionText;
    QString dataRoot;  // ends in a backslash; files are dataRoot + "data\" + name
    QString schoolName;
    QString termCode;
    QString hideArchived;  // "1" leaves hidden students out of the list
    QString userCode;
    QString photoFolder;  // ends in a backslash
    QString remoteHost, remoteDatabase, remoteUser, remotePassword, remoteSchoolKey;

    int collectionsAllowed = 0;   // 1: the user takes payments and sees fees
    QString forceTodayOnPosting;  // "1": a collection is dated today
    QString upperCaseNames;       // "1": name boxes type Turkish capitals
    QString mayChangeFees;        // "0", "1" or empty

    bool studentSelected = false;
    std::int64_t shownStudent = 0;  // whose card is shown; 0 for nobody
    QString photoFile;
    int listSortColumn = 1;
    int listRowCount = 0;

    QString noteOffsetX, noteOffsetY, noteHeight, lineThickness;  // of data\Prmt.txt, as they stand there
    QString uiFlags;                                              // of c:\qlm\tak.txt
    PrintSettings print;                                          // of data\Fatura.txt
    ReferenceLists reference;

    store::Database termDb;
    store::Recordset studentTable;  // table Ogrenci of termDb under ONOX
    bool termDbOpen = false;

    QString data_file(const QString& name) const { return dataRoot + QStringLiteral("data\\") + name; }
    QString term_file(const QString& term) const { return data_file(term + QStringLiteral("ogr.mdb")); }
    QString term_file() const { return term_file(termCode); }
    QString reference_file() const { return data_file(QStringLiteral("Bilgi.mdb")); }

    // Where a photograph lies that a student's row names: a bare name means the photo folder.
    QString photo_path(const QString& name) const {
        return name.contains(QStringLiteral(":\\")) ? name : photoFolder + name;
    }

    // lineThickness as a paper's pen takes it, in quarters of a point.
    int line_width() const;

    // Whether a panel may write: a student is on the card and the number box still holds that student's number.
    bool card_is_of(const QString& number_box) const;
};
