// A school's file may be a short text in place of a database: it names the server that holds the tables, and under
// which prefix. Keys and words of that text are Turkish, since the person who sets the office up writes them.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace store {

struct ServerPlace {
    QStringList hosts;  // "name" or "name:port"; the nodes of a cluster in the order in which they are tried
    int port = 3306;    // of hosts that name none
    QString database;
    QString user;
    QString password;
    QString password_file;  // holds the password in its first line instead; native, or beside the school's file
    QString prefix;         // of this file's tables: small letters, digits and "_", at most 20
    bool tls = false;
    QString certificate;  // of the authority that vouches for the server; native, empty: the system's

    bool operator==(const ServerPlace&) const = default;
};

// None for a file that is no such text. Throws std::runtime_error, naming file and line, for one that is and cannot be
// read; the password file is read here, so that `password` holds it. A file of 4096 bytes or more is not opened.
std::optional<ServerPlace> read_server_place(const QString& name, const QString& native_path);

// The text to be stored; `password` is left out where there is a password file.
QByteArray server_place_text(const ServerPlace& place);

}  // namespace store
