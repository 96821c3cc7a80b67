// The words in which rows are asked for and written at a MariaDB server. Every value is a literal: one trip asks for
// rows, and the same trip may begin a transaction ahead of it or end one behind it.
#pragma once

#include "store/engine.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mariadb_sql {

std::string quoted_name(std::string_view name);
std::string literal(std::string_view utf8);
std::string literal(const store::Value& value);

// Where the column with the sort key of a text field stands.
std::string key_column(std::string_view field);
// Whether a field has one: it is a text and part of an index.
bool has_key_column(const store::TableDef& table, const store::FieldDef& field);
// The value by which a key field is compared: the sort key of a text.
std::string key_literal(const store::Value& value);

// Asks for the row id, the version and the columns of the request. Two statements where `leading` is set: the rows of
// that leading key, and the first one behind them.
std::vector<std::string> read(const std::string& table, const store::ReadRequest& request);

// A new row's version and an old one's next version. On a cluster the server may undo a transaction between two
// statements without a word, so each write fails by itself where none is open.
inline constexpr auto first_version = "IF(@@in_transaction,0,NULL)";
std::string next_version(std::optional<std::int64_t> known);

// ",`A`=1,`A__key`=..." for each value, without the first comma.
std::string assignments(const store::TableInfo& table, std::span<const store::Assignment> values);
// "(row_version,`A`,`A__key`)" and the values for one row.
std::string columns(const store::TableInfo& table, std::span<const store::Assignment> values);
std::string row(const store::TableInfo& table, std::span<const store::Assignment> values);

}  // namespace mariadb_sql
