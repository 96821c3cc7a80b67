#include "store/mariadb_sql.h"

#include "platform/turkish.h"
#include "store/conversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace mariadb_sql {

namespace {

using namespace store;
using Kind = ReadRequest::Kind;

std::string joined(const std::vector<std::string>& parts, std::string_view separator) {
    std::string text;
    for (const std::string& part : parts) {
        if (!text.empty()) text += separator;
        text += part;
    }
    return text;
}

std::string hexadecimal(std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "X'";
    for (const char byte : bytes)
        (text += digits[static_cast<unsigned char>(byte) >> 4]) += digits[static_cast<unsigned char>(byte) & 15];
    return text + '\'';
}

// Without a fraction it stays a whole number, which a whole column is compared with at once.
std::string number_literal(double number) {
    char text[40];
    if (number == std::trunc(number) && std::abs(number) < 1e15)
        return {text, std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(number)).ptr};
    return {text, std::to_chars(text, text + sizeof text, number, std::chars_format::scientific).ptr};
}

// One read: its table, the columns that order it, and the keys it begins at.
class Query {
public:
    Query(const std::string& table, const ReadRequest& request) : request_(request) {
        const TableDef& definition = request.table.definition();
        head_ = "SELECT row_id,row_version";
        for (const int field : request.columns->fields) head_ += ',' + quoted_name(field_at(field).name);
        head_ += " FROM " + quoted_name(table);
        if (request.kind == Kind::row) return;
        const bool is_by_entry = request.index == ReadRequest::by_entry;
        const auto fields = is_by_entry ? std::vector<int>() : request.table.index_at(request.index).fields;
        for (const int field : fields) {
            const FieldDef& key = field_at(field);
            order_.push_back(quoted_name(is_text(key.type) ? key_column(key.name) : key.name));
        }
        const std::string index =
            order_.empty() ? "PRIMARY" : quoted_name(definition.indexes[static_cast<std::size_t>(request.index)].name);
        head_ += " FORCE INDEX (" + index + ")";
        names_row_ = order_.empty() || !request.table.index_at(request.index).unique ||
                     std::ranges::any_of(request.keys, &Value::is_null);
        for (const Value& key : request.keys) keys_.push_back(key_literal(key));
    }

    std::vector<std::string> statements() const {
        switch (request_.kind) {
            case Kind::first:
                return {statement({}, request_.limit)};
            case Kind::last:
                return {statement({}, request_.limit, " DESC")};
            case Kind::equal:
                return {statement(equal(keys_.size()), request_.limit)};
            case Kind::row:
                return {head_ + " WHERE row_id=" + std::to_string(request_.row)};
            case Kind::after:
                break;
        }
        if (request_.leading == nullptr) return {statement(joined(behind(0), " OR "), request_.limit)};
        const auto ranges = behind(1);
        return {ranges.empty() ? head_ + " WHERE FALSE"
                               : statement(equal(1) + " AND (" + joined(ranges, " OR ") + ")", request_.limit),
                statement(greater(0), 1)};
    }

private:
    const FieldDef& field_at(int field) const {
        return request_.table.definition().fields[static_cast<std::size_t>(field)];
    }
    std::string statement(const std::string& condition, int limit, const char* direction = "") const {
        std::string text = head_;
        if (!condition.empty()) text += " WHERE " + condition;
        std::string order;
        for (const std::string& column : order_) order += (order.empty() ? "" : ",") + column + direction;
        if (names_row_) order += (order.empty() ? "" : ",") + std::string("row_id") + direction;
        return text + " ORDER BY " + order + " LIMIT " + std::to_string(limit);
    }
    std::string equal(std::size_t count) const {
        std::vector<std::string> terms;
        for (std::size_t i = 0; i < count; ++i)
            terms.push_back(order_[i] + (request_.keys[i].is_null() ? " IS NULL" : "=" + keys_[i]));
        return joined(terms, " AND ");
    }
    // The first `key` keys equal, the next one greater; Null comes before everything.
    std::string greater(std::size_t key) const {
        const std::string before = key > 0 ? equal(key) + " AND " : "";
        return before + order_[key] + (request_.keys[key].is_null() ? " IS NOT NULL" : ">" + keys_[key]);
    }
    // The ranges behind the keys whose first `same` keys are equal to them.
    std::vector<std::string> behind(std::size_t same) const {
        std::vector<std::string> ranges;
        if (request_.row != ReadRequest::no_row) {
            const std::string before = keys_.empty() ? "" : equal(keys_.size()) + " AND ";
            ranges.push_back("(" + before + "row_id>" + std::to_string(request_.row) + ")");
        }
        for (std::size_t key = keys_.size(); key > same; --key) ranges.push_back("(" + greater(key - 1) + ")");
        return ranges;
    }

    const ReadRequest& request_;
    std::string head_;
    std::vector<std::string> order_;
    std::vector<std::string> keys_;
    // An index ends with the row id by itself, and the server sorts anew where it is named behind unique keys; where
    // some of these are Null it sorts anyway.
    bool names_row_ = true;
};

}  // namespace

std::string quoted_name(std::string_view name) {
    std::string text = "`";
    for (const char letter : name) {
        if (letter == '`') text += letter;
        text += letter;
    }
    return text + '`';
}

std::string literal(std::string_view utf8) {
    std::string text = "'";
    text.reserve(utf8.size() + 2);
    for (const char letter : utf8) {
        if (letter == '\'') text += letter;
        text += letter;
    }
    return text + '\'';
}

std::string literal(const Value& value) {
    if (value.is_null()) return "NULL";
    if (value.is_text()) return literal(std::string_view(value.text().toStdString()));
    if (const auto* whole = std::get_if<std::int64_t>(&value.raw())) return std::to_string(*whole);
    return number_literal(value.number());
}

std::string key_column(std::string_view field) {
    return std::string(field) + "__key";
}

bool has_key_column(const TableDef& table, const FieldDef& field) {
    return is_text(field.type) && std::ranges::any_of(table.indexes, [&](const IndexDef& index) {
               return std::ranges::find(index.fields, field.name) != index.fields.end();
           });
}

std::string key_literal(const Value& value) {
    return value.is_text() ? hexadecimal(turkish::sort_key(value.text())) : literal(value);
}

std::vector<std::string> read(const std::string& table, const ReadRequest& request) {
    return Query(table, request).statements();
}

std::string next_version(std::optional<std::int64_t> known) {
    if (!known) return "IF(@@in_transaction,row_version+1,NULL)";
    return "IF(@@in_transaction AND row_version=" + std::to_string(*known) + ',' + std::to_string(*known + 1) +
           ",NULL)";
}

namespace {

// Hands over each column that a value goes to, with its literal.
template <typename Take>
void each_column(const TableInfo& table, std::span<const Assignment> values, Take take) {
    for (const Assignment& assignment : values) {
        const FieldDef& field = table.definition().fields[static_cast<std::size_t>(assignment.field)];
        take(quoted_name(field.name), literal(assignment.value));
        if (has_key_column(table.definition(), field))
            take(quoted_name(key_column(field.name)), key_literal(assignment.value));
    }
}

}  // namespace

std::string assignments(const TableInfo& table, std::span<const Assignment> values) {
    std::string text;
    each_column(table, values, [&](const std::string& column, const std::string& value) {
        text += (text.empty() ? "" : ",") + column + '=' + value;
    });
    return text;
}

std::string columns(const TableInfo& table, std::span<const Assignment> values) {
    std::string text = "(row_version";
    each_column(table, values, [&](const std::string& column, const std::string&) { text += ',' + column; });
    return text + ')';
}

std::string row(const TableInfo& table, std::span<const Assignment> values) {
    std::string text = "(";
    text += first_version;
    each_column(table, values, [&](const std::string&, const std::string& value) { text += ',' + value; });
    return text + ')';
}

}  // namespace mariadb_sql
