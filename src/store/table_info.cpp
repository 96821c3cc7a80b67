#include "store/table_info.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace store {

namespace {

std::uint32_t next_id() {
    static std::uint32_t last = 0;
    return ++last;
}

std::vector<int> first_numbers(std::size_t count) {
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

}  // namespace

Projection::Projection(std::vector<int> chosen, std::size_t field_count)
    : fields(std::move(chosen)), slot_by_field(field_count, -1), id(next_id()) {
    for (std::size_t slot = 0; slot < fields.size(); ++slot)
        slot_by_field[static_cast<std::size_t>(fields[slot])] = static_cast<int>(slot);
}

FieldUse::FieldUse(std::vector<int> key_fields, std::size_t field_count)
    : key_fields_(std::move(key_fields)), last_touch_(field_count, 0) {
    rebuild();
}

const ProjectionPtr& FieldUse::next() {
    if (missing_ || epoch_ - rebuilt_ >= memory) rebuild();
    untouched_ = true;
    return current_;
}

void FieldUse::rebuild() {
    std::vector<int> fields = key_fields_;
    for (std::size_t field = 0; field < last_touch_.size(); ++field) {
        const bool wanted = last_touch_[field] != 0 && epoch_ - last_touch_[field] < memory;
        if (wanted && std::ranges::find(key_fields_, static_cast<int>(field)) == key_fields_.end())
            fields.push_back(static_cast<int>(field));
    }
    if (!current_ || fields != current_->fields)
        current_ = std::make_shared<const Projection>(std::move(fields), last_touch_.size());
    rebuilt_ = epoch_;
    missing_ = false;
}

TableInfo::TableInfo(TableDef definition)
    : definition_(std::move(definition)),
      all_fields_(
          std::make_shared<const Projection>(first_numbers(definition_.fields.size()), definition_.fields.size())),
      id_(next_id()) {
    for (std::size_t i = 0; i < definition_.fields.size(); ++i)
        by_name_.emplace(definition_.fields[i].name, static_cast<int>(i));
    for (const IndexDef& index : definition_.indexes) {
        std::vector<int> keys;
        for (const std::string& name : index.fields) keys.push_back(field(name));
        indexes_.push_back({keys, index.unique, {keys, field_count()}, {keys, field_count()}});
    }
    if (indexes_.empty()) indexes_.push_back({{}, false, {{}, field_count()}, {{}, field_count()}});
}

int TableInfo::field(std::string_view name) const {
    const auto found = by_name_.find(name);
    return found == by_name_.end() ? -1 : found->second;
}

int TableInfo::index(std::string_view name) const {
    const auto found = std::ranges::find(definition_.indexes, name, &IndexDef::name);
    return found == definition_.indexes.end() ? -1 : static_cast<int>(found - definition_.indexes.begin());
}

TableInfo& table_info(const std::string& description, const std::function<TableDef()>& define) {
    static std::unordered_map<std::string, std::unique_ptr<TableInfo>> known;
    auto& place = known[description];
    if (!place) place = std::make_unique<TableInfo>(define());
    return *place;
}

}  // namespace store
