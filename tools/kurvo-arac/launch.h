// Starts the program as the launcher of the suite does: a hand-over file, a row among the running programs.
#pragma once

#include <QString>
#include <QStringList>

namespace launch {

// What the hand-over file tells the program; the reserved items are left empty.
struct HandOver {
    QString version;
    QString root;  // ends in a backslash
    QString school;
    QString term;
    QString hide_archived;  // "1" hides hidden students
    QString rights;         // six characters, "1" for each panel that the user may use
    QString user;
    QString photos;  // ends in a backslash
    QString remote_host, remote_database, remote_user, remote_password, remote_key;
};

// The 18 items, one a line, each in double quotes, in code page 1254. Throws std::runtime_error where a value
// holds a double quote or a line end, which the file cannot tell.
QStringList hand_over_lines(const HandOver& values);

// Writes "c:\qlm\log.txt" and the row "Kurvo" of the running programs.
void prepare(const HandOver& values);

// Starts `program` and waits until it has taken the hand-over file. Throws std::runtime_error where it could not
// be started or did not take the file.
void start(const QString& program);

}  // namespace launch
