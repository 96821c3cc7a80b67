// The file dialog of the program: a clerk picks one existing file.
#pragma once

#include <QString>

#include <functional>

namespace file_choice {

// Starts in `folder` (an office name as in paths.h) with no name filled in. Gives the file's office name, empty where
// the clerk picks none.
QString open(const QString& folder);

// A choice in place of a person's for as long as the object lives (tests). It gets the folder and gives the native
// path, as the dialog does.
class Override {
public:
    explicit Override(std::function<QString(const QString&)> choice);
    ~Override();
    Override(const Override&) = delete;
    Override& operator=(const Override&) = delete;

private:
    std::function<QString(const QString&)> before_;
};

}  // namespace file_choice
