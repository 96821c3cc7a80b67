// Rows that were read together, as the file gave them: a text becomes a QString only when somebody asks for it, since
// much of what is read ahead is looked at once or never.
#pragma once

#include "store/short_texts.h"
#include "store/table_info.h"
#include "store/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace store {

// Names a row of a table for as long as it lives; grows in order of entry.
using RowId = std::int64_t;

class Batch {
public:
    // Forgets the rows; those to come have the fields of `columns`.
    void clear(const ProjectionPtr& columns) {
        projection_ = columns;
        rows_.clear();
        cells_.clear();
        texts_.clear();
        complete = false;
    }
    // A row is begun with its id and then gets one value for each field of the projection, in that order.
    void begin_row(RowId row) { rows_.push_back(row); }
    void add_null() { cells_.push_back({Kind::null, 0, {}}); }
    void add(std::int64_t whole) { cells_.push_back({Kind::whole, 0, {.whole = whole}}); }
    void add(double real) { cells_.push_back({Kind::real, 0, {.real = real}}); }
    void add(std::string_view utf8) {
        cells_.push_back({Kind::text, static_cast<std::uint32_t>(utf8.size()), {.offset = texts_.size()}});
        texts_.append(utf8);
    }

    std::size_t size() const { return rows_.size(); }
    RowId row(std::size_t row) const { return rows_[row]; }
    const Projection& projection() const { return *projection_; }

    // As Value gives them; short texts come from `texts`.
    Value value(std::size_t row, int slot, ShortTexts& texts) const {
        const Cell& cell = at(row, slot);
        switch (cell.kind) {
            case Kind::whole:
                return cell.whole;
            case Kind::real:
                return cell.real;
            case Kind::text:
                return texts.of(utf8(cell));
            default:
                return {};
        }
    }
    QString text(std::size_t row, int slot, ShortTexts& texts) const {
        const Cell& cell = at(row, slot);
        return cell.kind == Kind::text ? texts.of(utf8(cell)) : value(row, slot, texts).text();
    }
    double number(std::size_t row, int slot, ShortTexts& texts) const {
        const Cell& cell = at(row, slot);
        return cell.kind == Kind::real ? cell.real : value(row, slot, texts).number();
    }

    bool complete = false;  // nothing follows in the order of the read

private:
    enum class Kind : std::uint8_t { null, whole, real, text };
    struct Cell {
        Kind kind;
        std::uint32_t size;  // of a text, in bytes
        union {
            std::int64_t whole;
            double real;
            std::size_t offset;  // of a text in texts_
        };
    };

    const Cell& at(std::size_t row, int slot) const {
        return cells_[row * projection_->width() + static_cast<std::size_t>(slot)];
    }
    std::string_view utf8(const Cell& cell) const { return {texts_.data() + cell.offset, cell.size}; }

    ProjectionPtr projection_;
    std::vector<RowId> rows_;
    std::vector<Cell> cells_;  // row after row
    std::string texts_;        // UTF-8, one behind the other
};

}  // namespace store
