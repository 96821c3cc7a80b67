// A school goes from its files to a server and back.
//
// Names are as in platform/paths.h. Every refusal is a std::runtime_error with a Turkish text. Whatever stops a move,
// each file of the school lies whole on one side, and the same call goes on with the rest.
#pragma once

#include "store/relocation.h"

#include <QString>

#include <functional>

namespace moving {

struct Told {
    std::function<void(const QString& file, const QString& words)> begins;
    store::TableDone copied;
    std::function<void(const QString& file, const QString& words)> done;
};

// The prefix at the server of each file of a school: "2026ogr", with `front` ahead of it "kadikoy_2026ogr". Refuses
// what is too long.
QString prefix_of(const QString& file, const QString& front);

// Moves all files of the school that lie under `root` in the folder; those that are on a server stay there. Nobody may
// be writing. `place` lacks the prefix. With `replace` tables of these prefixes that the server holds already go.
// Returns how many were moved.
int to_server(const QString& root, store::ServerPlace place, const QString& front, bool replace, const Told& told);

// Moves all files of the school back that lie on a server. Returns how many were moved.
int to_files(const QString& root, const Told& told);

// Removes what the files that have come back have left at the server. Returns of how many files.
int remove_left_tables(const QString& root);

}  // namespace moving
