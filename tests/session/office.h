// A school's files for a test of the session, and what the launcher hands over.
#pragma once

#include "launch.h"
#include "session/context.h"
#include "support/drives.h"

#include <QByteArray>
#include <QString>

// The folders of a school, without its databases, on drives of their own for as long as the object lives.
class Folders {
public:
    Folders();

    static QString data(const QString& name) { return QStringLiteral("c:\\okul\\data\\") + name; }
    static void write(const QString& name, const QByteArray& bytes);
    static QByteArray bytes(const QString& name);

    // A session that knows the root, the term 2026 and the user OYA, as the hand-over leaves it.
    static SessionContext session();

private:
    Drives drives_;
};

// All files of a school with these terms, the first one 2026.
class Office : public Folders {
public:
    explicit Office(const QStringList& terms = {QStringLiteral("2026")});

    // What the launcher would hand over: all rights, version 21.1.
    static launch::HandOver hand_over();

    // One row with these fields.
    static void add(const QString& file, std::string_view table,
                    std::initializer_list<std::pair<const char*, store::Value>> fields);
    static void student(const QString& term, int number, const QString& name);
    // The plain text of the version row, empty where there is none; or a new value for it.
    static QString version_row();
    static void set_version_row(const QString& stored);
    static bool runs(const QString& program);  // a row among the running programs
};

// The message of the exception that `act` throws; empty when it throws none.
template <typename Act>
QString refusal(Act act) {
    try {
        act();
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}
