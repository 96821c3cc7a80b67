// What tables, fields and indexes there are, as data. The tool that makes a school, the tests and the checks
// read it; the program itself takes each file as it finds it.
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace store {

enum class FieldType { text, memo, integer, long_integer, number };

struct FieldDef {
    std::string name;
    FieldType type;
    int size = 0;  // told for texts, not enforced; 0 where none is told
};

struct IndexDef {
    std::string name;
    std::vector<std::string> fields;
    bool unique = true;
    bool primary = false;
};

struct TableDef {
    std::string name;
    std::vector<FieldDef> fields;
    std::vector<IndexDef> indexes;
};

enum class FileKind { term, reference, version, users, programs };

// The tables of a file of this kind.
const std::vector<TableDef>& catalogue(FileKind kind);
const TableDef& table_of(FileKind kind, std::string_view name);
// The day board's scratch table.
const TableDef& scratch_table();

}  // namespace store
