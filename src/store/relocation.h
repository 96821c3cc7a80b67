// A school's file goes from its own database to a server and back. Failures throw as record.h says, and leave the file
// where it was; names are as in platform/paths.h.
//
// Beside the file stand, by its name and an ending: the database that has gone to a server (".yerel"), the text that
// named the server (".sunucu"), and what is not finished yet (".tasiniyor").
#pragma once

#include "store/engine_copy.h"
#include "store/server_place.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace store {

class MariadbEngine;

// The server that holds the tables of this file; none where they lie in the file itself.
std::optional<ServerPlace> server_place_of(const QString& path);

// The native names that may stand beside the file as told above, and the file of the password: no part of the school.
QStringList companions_of(const QString& path);

// Whether the server holds tables of this prefix already.
bool has_tables(const QString& path, const ServerPlace& place);

// To the server. From construction to destruction nobody else writes the file; fails as locked where somebody does.
class MoveToServer {
public:
    explicit MoveToServer(const QString& path);
    ~MoveToServer();

    // Throws where the server holds tables of this prefix already, unless a cut move of this file has left them.
    void require_free(const ServerPlace& place);
    // Fills new tables, in place of those of this prefix, compares every row, and then puts the text of `place` in the
    // place of the database.
    void run(const ServerPlace& place, const TableDone& copied);

private:
    bool holds_nothing_else(const ServerPlace& place);
    void fill(const ServerPlace& place, const TableDone& copied);
    void put_text_in_place();

    QString path_;
    QString native_;
    QString draft_;
    std::unique_ptr<Engine> source_;
};

// Back to a database of the file's own, for a file that lies on a server. As above; workstations that have it open
// cannot write to the server any more, whose tables stay.
class MoveToFile {
public:
    explicit MoveToFile(const QString& path);
    ~MoveToFile();

    void run(const TableDone& copied);

private:
    void end_writing();
    void put_database_in_place();

    QString path_;
    QString native_;
    QString draft_;
    ServerPlace place_;
    std::unique_ptr<MariadbEngine> source_;
};

// Removes the tables that a file which has come back has left at its server, and the text that names it. False where
// none are left; throws where somebody uses them.
bool remove_left_tables(const QString& path);

// Makes sure, before anything is written, that the tables of a file that lies on a server can take the rows of the
// database `copy`; a server that holds none of this file gets them, empty.
void make_ready(const QString& path, const QString& copy);

}  // namespace store
