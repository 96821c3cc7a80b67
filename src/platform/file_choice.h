// The file dialog of the program: a clerk picks one existing file.
#pragma once

#include "platform/override.h"

#include <QString>

namespace file_choice {

// Starts in `folder` (an office name as in paths.h) with no name filled in. Gives the file's office name, empty where
// the clerk picks none.
QString open(const QString& folder);

// A choice in place of a person's. It gets the folder and gives the native path, as the dialog does.
using Override = ::Override<struct File, QString(const QString&)>;

}  // namespace file_choice
