// A small file whose values are told apart by their position only.
#pragma once

#include "platform/text_file.h"

#include <QString>

#include <vector>

// Items count from 1. What is missing or wrong throws std::runtime_error in Turkish that names the file, the line,
// the item's number and `what` it stands for.
class ItemFile {
public:
    explicit ItemFile(QString name);

    const QString& at(int number, const QString& what) const;
    // Where a number from 0 to `most` must stand; an empty place counts as 0.
    QString number_at(int number, const QString& what, double most) const;
    int switch_at(int number, const QString& what) const;  // 0 or 1

    int size() const;               // without the empty lines that an editor leaves at the end
    int line_of(int number) const;  // of an item that is there; behind the last one, of the last one
    [[noreturn]] void refuse(int line, const QString& why) const;

private:
    QString name_;
    std::vector<text_file::Item> items_;
};

// Such a refusal of the file `name`.
[[noreturn]] void refuse_line(const QString& name, int line, const QString& why);
