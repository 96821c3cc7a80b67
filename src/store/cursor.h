// The state of a record set: current index, place, rows read ahead, edit buffer.
#pragma once

#include "store/session.h"

#include <optional>
#include <span>

namespace store {

struct Recordset::Cursor {
    Cursor(std::shared_ptr<Database::Session> session, std::string_view table);

    void set_index(std::string_view name);
    void seek(std::string_view comparison, std::span<const Value> keys);
    // Seeks the first row with these leading keys and a further key that is not empty.
    void seek_prefix(std::span<const Value> prefix);
    // Whether the cursor stands on a row with the first `count` keys of the last seek.
    bool on_prefix(std::size_t count);
    bool no_match() const { return place_ == Place::nowhere; }
    bool at_end();
    std::int64_t record_count() const { return session_->engine().count(info_); }
    bool has_rows();
    void move_first();
    void move_next();
    void move_last();

    int field_number(std::string_view name);
    // Holds until the next move, write or end of the edit.
    const Value& value(int field);
    QString text(int field);
    double number(int field);
    void assign(int field, const Value& value);
    const TableInfo& info() const { return info_; }
    const QString& file() const { return session_->name(); }
    bool is_open() const { return session_->is_open(); }

    void edit();
    void add_new();
    void update();
    void cancel_update();
    void erase();

private:
    enum class Place { at_first, on_row, on_deleted, past_end, nowhere };
    struct EditBuffer {
        std::optional<EditLock> lock;  // none for a new row
        std::vector<Assignment> values;

        const Value* assigned(int field) const;
    };
    // Where a field of the current row was read.
    struct Spot {
        const Batch& batch;
        std::size_t row;
        int slot;
    };
    struct Decoded {
        std::uint64_t turn = 0;  // turn_ when it was made
        Value value;
    };

    void read(ReadRequest::Kind kind, FieldUse& use, std::span<const Value> keys = {}, RowId row = ReadRequest::no_row);
    const ProjectionPtr& next_columns(FieldUse& use) const;
    void read_on();
    bool is_fresh() const { return stamp_ == *writes_; }
    void move_first_or_end();
    void settle();       // reads the first row if the cursor waits in front of it
    void require_row();  // settles; fails where no row stands
    void require_no_edit() const;
    void refresh();        // reads the current row anew
    Spot find(int field);  // as the file has it, whatever an edit has assigned
    Spot find_in_wide_row(int field);
    const Value& decoded(int field, const Spot& spot);
    RowId row() const { return batch_.row(at_); }
    const Value& current_key(std::size_t key);
    std::vector<Value> current_keys();
    void turn();          // another row, or the row read anew
    EditLock lock_row();  // under the lock: the row is there and still has its key
    bool read_row(Batch& result, const ProjectionPtr& columns);
    bool changes_key(const EditBuffer& edit) const;
    [[noreturn]] void misuse(QStringView what) const;

    std::shared_ptr<Database::Session> session_;
    TableInfo& info_;
    IndexInfo* index_;
    int index_number_ = 0;
    std::uint64_t* writes_;  // of this process to this table

    Place place_ = Place::at_first;
    Batch batch_;
    std::size_t at_ = 0;
    std::uint64_t stamp_ = 0;       // *writes_ when the batch was read
    int limit_ = 0;                 // rows of the batch
    bool too_narrow_ = false;       // the batch lacks a field that was asked for
    FieldUse* use_ = nullptr;       // who learns from reading the batch
    std::vector<int> followers_;    // the field that was asked for behind each field
    int last_field_ = 0;            // that was asked for
    Batch wide_;                    // the current row with all fields, if it was needed
    bool is_wide_ = false;          // whether it was
    std::vector<Decoded> decoded_;  // by field: values of the current row that were asked for
    std::uint64_t turn_ = 1;
    std::vector<Value> seek_keys_;
    std::optional<Value> leading_;  // of the rows that the reader is after
    std::optional<EditBuffer> edit_;
};

}  // namespace store
