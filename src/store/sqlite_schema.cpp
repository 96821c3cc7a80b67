// Definitions of tables and indexes as SQLite keeps them. Index names are unique in a table only, so index OTDX of
// Devam is stored as "Devam.OTDX"; the first index of a table is its primary order.
#include "store/conversion.h"
#include "store/messages.h"
#include "store/sqlite_engine.h"

#include <algorithm>

namespace store {

namespace {

std::string column_type(const FieldDef& field) {
    switch (field.type) {
        case FieldType::text:
            return field.size > 0 ? "TEXT(" + std::to_string(field.size) + ")" : "TEXT";
        case FieldType::memo:
            return "MEMO TEXT";
        case FieldType::integer:
            return "SMALLINT";
        case FieldType::long_integer:
            return "INTEGER";
        case FieldType::number:
            return "REAL";
    }
    return {};
}

FieldDef field_of(std::string name, const std::string& declared) {
    if (declared.starts_with("TEXT(")) return {std::move(name), FieldType::text, std::atoi(declared.c_str() + 5)};
    if (declared.starts_with("TEXT")) return {std::move(name), FieldType::text};
    if (declared.starts_with("MEMO")) return {std::move(name), FieldType::memo};
    if (declared == "SMALLINT") return {std::move(name), FieldType::integer};
    if (declared == "INTEGER") return {std::move(name), FieldType::long_integer};
    return {std::move(name), FieldType::number};
}

bool is_key(const TableDef& table, const FieldDef& field) {
    return std::ranges::any_of(table.indexes, [&](const IndexDef& index) {
        return std::ranges::find(index.fields, field.name) != index.fields.end();
    });
}

std::string table_sql(const TableDef& table) {
    std::string columns;
    for (const FieldDef& field : table.fields) {
        columns += (columns.empty() ? "" : ",") + quoted_name(field.name) + " " + column_type(field);
        if (is_text(field.type) && is_key(table, field)) columns += " COLLATE TURKISH";
    }
    return "CREATE TABLE " + quoted_name(table.name) + " (" + columns + ")";
}

std::string index_sql(const TableDef& table, const IndexDef& index) {
    std::string keys;
    for (const std::string& field : index.fields) keys += (keys.empty() ? "" : ",") + quoted_name(field);
    return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " +
           quoted_name(table.name + "." + index.name) + " ON " + quoted_name(table.name) + " (" + keys + ")";
}

}  // namespace

void SqliteEngine::create_table(const TableDef& table) {
    std::vector<IndexDef> indexes = table.indexes;
    std::ranges::stable_partition(indexes, [](const IndexDef& index) { return index.primary; });
    guarded(table.name, [&] {
        execute(table_sql(table));
        for (const IndexDef& index : indexes) execute(index_sql(table, index));
    });
}

std::vector<TableDef> SqliteEngine::tables() {
    std::vector<std::string> names;
    guarded({}, [&] {
        SqliteStatement& all =
            statement("SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
        const SqliteReset reset(all);
        while (all.step()) names.push_back(all.text(0));
    });
    std::vector<TableDef> definitions;
    for (const std::string& name : names) definitions.push_back(table(name).definition());
    return definitions;
}

TableInfo& SqliteEngine::table(std::string_view name) {
    const std::string wanted(name);
    if (const auto found = tables_.find(wanted); found != tables_.end()) return *found->second;
    std::string description;
    guarded(name, [&] {
        SqliteStatement& parts =
            statement("SELECT sql FROM sqlite_master WHERE tbl_name=? AND sql IS NOT NULL ORDER BY rowid");
        const SqliteReset reset(parts);
        parts.bind(1, name);
        while (parts.step()) description += parts.text(0) + ";";
    });
    if (description.empty()) throw messages::error(u"Tablo bulunamadı", name_, name);
    TableInfo& info = table_info(description, [&] { return guarded(name, [&] { return define(name); }); });
    tables_.emplace(wanted, &info);
    return info;
}

TableDef SqliteEngine::define(std::string_view name) {
    TableDef table{std::string(name), {}, {}};
    SqliteStatement fields(connection_.get(), "SELECT name, type FROM pragma_table_info(?)");
    fields.bind(1, name);
    while (fields.step()) table.fields.push_back(field_of(fields.text(0), fields.text(1)));

    SqliteStatement keys(connection_.get(),
                         "SELECT m.name, l.\"unique\", c.name FROM sqlite_master m, pragma_index_list(?1) l, "
                         "pragma_index_info(m.name) c WHERE m.type='index' AND m.tbl_name=?1 AND l.name=m.name "
                         "ORDER BY m.rowid, c.seqno");
    keys.bind(1, name);
    const std::string prefix = table.name + ".";
    while (keys.step()) {
        std::string index = keys.text(0);
        if (!index.starts_with(prefix)) continue;
        index.erase(0, prefix.size());
        if (table.indexes.empty() || table.indexes.back().name != index)
            table.indexes.push_back({index, {}, keys.whole(1) != 0, table.indexes.empty()});
        table.indexes.back().fields.push_back(keys.text(2));
    }
    return table;
}

}  // namespace store
