// What this process knows of a table: its definition and which of its fields are asked for.
#pragma once

#include "store/catalogue.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace store {

// Which fields a read brings and where each stands in a row of the result.
struct Projection {
    Projection(std::vector<int> chosen, std::size_t field_count);

    int slot_of(int field) const { return slot_by_field[static_cast<std::size_t>(field)]; }  // -1: not read
    std::size_t width() const { return fields.size(); }

    std::vector<int> fields;
    std::vector<int> slot_by_field;
    std::uint32_t id;  // different for each projection of this process
};
using ProjectionPtr = std::shared_ptr<const Projection>;

// Learns which fields the readers of one index ask for, so that a walk over a table of 85 fields reads three. A field
// that nobody asks for any more is left out again after a while. The key fields are always read.
class FieldUse {
public:
    FieldUse(std::vector<int> key_fields, std::size_t field_count);

    // To be called for every value that is read from a batch.
    void touch(int field) {
        if (untouched_) ++epoch_, untouched_ = false;
        last_touch_[static_cast<std::size_t>(field)] = epoch_;
        missing_ |= current_->slot_of(field) < 0;
    }
    // Nobody has asked for anything yet.
    bool is_new() const { return epoch_ == 0; }
    // The projection for the next batch.
    const ProjectionPtr& next();

private:
    void rebuild();

    static constexpr std::uint32_t memory = 64;  // batches
    std::vector<int> key_fields_;
    std::vector<std::uint32_t> last_touch_;  // 0: never
    std::uint32_t epoch_ = 0;
    std::uint32_t rebuilt_ = 0;
    bool untouched_ = true;
    bool missing_ = false;
    ProjectionPtr current_;
};

struct IndexInfo {
    std::vector<int> fields;
    bool unique;
    FieldUse point;  // of seeks for one row
    FieldUse range;  // of walks
};

class TableInfo {
public:
    explicit TableInfo(TableDef definition);
    TableInfo(const TableInfo&) = delete;  // the names are looked up in its own definition
    TableInfo& operator=(const TableInfo&) = delete;

    const TableDef& definition() const { return definition_; }
    int field(std::string_view name) const;  // -1: none
    int index(std::string_view name) const;  // -1: none
    std::size_t field_count() const { return definition_.fields.size(); }
    IndexInfo& index_at(int index) { return indexes_[static_cast<std::size_t>(index)]; }
    const IndexInfo& index_at(int index) const { return indexes_[static_cast<std::size_t>(index)]; }
    const ProjectionPtr& all_fields() const { return all_fields_; }
    std::uint32_t id() const { return id_; }  // different for each table of this process

private:
    TableDef definition_;
    std::unordered_map<std::string_view, int> by_name_;
    std::vector<IndexInfo> indexes_;  // a table without one has the order of entry as its only index
    ProjectionPtr all_fields_;
    std::uint32_t id_;
};

// The one TableInfo of this process for tables described alike, whichever file they lie in; `define` gives the
// definition when it is not known yet. Kept to the end of the process.
TableInfo& table_info(const std::string& description, const std::function<TableDef()>& define);

}  // namespace store
