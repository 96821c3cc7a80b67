#include "store/sqlite_query.h"

#include "store/engine.h"
#include "store/sqlite_statement.h"

#include <vector>

namespace store {

namespace {

using Form = ReadShape::Form;

std::string joined(const std::vector<std::string>& parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts) text += (text.empty() ? "" : separator) + part;
    return text;
}

std::vector<std::string> key_names(const TableInfo& table, int index) {
    std::vector<std::string> names;
    if (index == ReadRequest::by_entry) return names;
    for (const int field : table.index_at(index).fields)
        names.push_back(quoted_name(table.definition().fields[static_cast<std::size_t>(field)].name));
    return names;
}

std::string tuple_condition(std::vector<std::string> names, bool later_row) {
    if (later_row) names.push_back("rowid");
    std::string marks = "?";
    for (std::size_t i = 1; i < names.size(); ++i) marks += ",?";
    return "(" + joined(names, ",") + ")>(" + marks + ")";
}

std::string condition(const std::vector<std::string>& names, const ReadShape& shape) {
    std::vector<std::string> terms;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool compared = i + 1 == names.size();
        if (compared && shape.form == Form::greater)
            terms.push_back(names[i] + ">?");
        else if (compared && shape.form == Form::behind_null)
            terms.push_back(names[i] + " IS NOT NULL");
        else
            terms.push_back(names[i] + ((shape.nulls >> i & 1) ? " IS NULL" : "=?"));
    }
    if (shape.form == Form::equal_later_row) terms.push_back("rowid>?");
    return joined(terms, " AND ");
}

std::string where(std::vector<std::string> names, const ReadShape& shape) {
    names.resize(static_cast<std::size_t>(shape.keys));
    switch (shape.form) {
        case Form::all:
        case Form::descending:
            return {};
        case Form::row:
            return " WHERE rowid=?";
        case Form::tuple:
        case Form::tuple_or_later_row:
            return " WHERE " + tuple_condition(std::move(names), shape.form == Form::tuple_or_later_row);
        default:
            return " WHERE " + condition(names, shape);
    }
}

std::string order(std::vector<std::string> names, bool descending) {
    names.push_back("rowid");
    const std::string direction = descending ? " DESC" : "";
    return " ORDER BY " + joined(names, (direction + ",").c_str()) + direction;
}

}  // namespace

std::uint64_t ReadShape::code(const Projection& columns) const {
    return std::uint64_t{columns.id} << 32 | static_cast<std::uint64_t>(index & 0xFF) << 24 |
           static_cast<std::uint64_t>(form) << 20 | static_cast<std::uint64_t>(keys) << 16 | nulls;
}

std::string read_sql(const TableInfo& table, const ReadShape& shape, const Projection& columns) {
    const TableDef& definition = table.definition();
    std::string sql = "SELECT rowid";
    for (const int field : columns.fields)
        sql += "," + quoted_name(definition.fields[static_cast<std::size_t>(field)].name);
    sql += " FROM " + quoted_name(definition.name);
    if (shape.form == Form::row) return sql + where({}, shape);

    const std::vector<std::string> names = key_names(table, shape.index);
    if (!names.empty()) {
        const IndexDef& index = definition.indexes[static_cast<std::size_t>(shape.index)];
        sql += " INDEXED BY " + quoted_name(definition.name + "." + index.name);
    }
    return sql + where(names, shape) + order(names, shape.form == Form::descending);
}

}  // namespace store
