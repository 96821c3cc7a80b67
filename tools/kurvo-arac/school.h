// Makes the files of a school: what the suite's set-up does before the office can start to work.
//
// Names are the office's own ("c:\okul\"), see platform/paths.h. Every refusal is a std::runtime_error with a
// Turkish text that names the file.
#pragma once

#include "store/catalogue.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace school {

inline const QString default_root = QStringLiteral("c:\\okul\\");
inline const QString default_term = QStringLiteral("2026");
inline const QString programs_file = QStringLiteral("c:\\qlm\\Psys.mdb");
inline const QString hand_over_file = QStringLiteral("c:\\qlm\\log.txt");

// A root folder as the session wants it: with one backslash at its end.
QString folder(const QString& name);
QString data_file(const QString& root, const QString& name);
QString term_file(const QString& root, const QString& term);
QString reference_file(const QString& root);
QString photo_folder(const QString& root);

struct File {
    QString path;
    store::FileKind kind;
};

// The files that lie under a root with these terms, reference files first.
std::vector<File> files_of(const QString& root, const QStringList& terms);
std::vector<File> term_files_of(const QString& root, const QStringList& terms);

// The terms that have a file under this root, in the order of their names.
QStringList terms_of(const QString& root);

// Whether a school lies there.
bool exists(const QString& root);

// Makes all files of a school, the version row of the program in "data\Dsys.mdb", and the workstation's table of
// running programs unless it is there. Refuses, before anything is made, if one of the school's files exists;
// what was made is removed if a later file cannot be made.
void create(const QString& root, const QStringList& terms);

// Adds the term files alone to a school that exists. Refuses if one of them exists or a file of the school is
// missing.
void add_terms(const QString& root, const QStringList& terms);

// Takes files back that were just made, when filling them failed.
void remove(const std::vector<File>& files);

// Makes the workstation's table of running programs if it is missing.
void create_programs_file();

// The version that the data files of a school carry; empty where they carry none.
QString version_of(const QString& root);

// Adds the user or changes the option characters.
void set_user(const QString& root, const QString& code, const QString& options);

}  // namespace school
