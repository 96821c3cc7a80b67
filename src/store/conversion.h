// How a value becomes one of a field's type.
#pragma once

#include "store/catalogue.h"
#include "store/value.h"

namespace store {

inline bool is_text(FieldType type) {
    return type == FieldType::text || type == FieldType::memo;
}
inline bool is_whole(FieldType type) {
    return type == FieldType::integer || type == FieldType::long_integer;
}

// For an assignment: a number becomes its plain text, a numeric text its number; a number for a whole field is
// rounded to the nearest, halves to the even one. Null stays Null. Throws std::runtime_error naming table and field
// for a text that is no number and for a number that 64 bits do not hold.
Value stored_value(const Value& value, const TableDef& table, const FieldDef& field);

// For a seek: like the above, but a text counts by its numeric prefix, and a number is not rounded.
Value key_value(const Value& value, FieldType type);

// The order of keys: Null, then numbers by size, then texts in the Turkish order. Both must be of one field's type.
int compare_keys(const Value& left, const Value& right);

}  // namespace store
