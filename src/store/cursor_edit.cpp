// The writing half of a record set.
#include "store/conversion.h"
#include "store/cursor.h"
#include "store/messages.h"

#include <algorithm>

namespace store {

const Value* Recordset::Cursor::EditBuffer::assigned(int field) const {
    const auto found = std::ranges::find(values, field, &Assignment::field);
    return found == values.end() ? nullptr : &found->value;
}

void Recordset::Cursor::assign(int field, const Value& value) {
    session_->engine();
    if (!edit_) misuse(u"Kayıt değişikliği başlatılmadan alan yazılamaz");
    const TableDef& table = info_.definition();
    Value stored = stored_value(value, table, table.fields[static_cast<std::size_t>(field)]);
    const auto found = std::ranges::find(edit_->values, field, &Assignment::field);
    if (found != edit_->values.end())
        found->value = std::move(stored);
    else
        edit_->values.push_back({field, std::move(stored)});
}

// The number of a deleted row may come back with another one's data, so the key must be the known one, too.
EditLock Recordset::Cursor::lock_row() {
    require_no_edit();
    require_row();
    EditLock lock(session_, info_.definition().name);
    const std::vector<Value> known = current_keys();
    refresh();
    for (std::size_t key = 0; key < known.size(); ++key)
        if (compare_keys(current_key(key), known[key]) != 0)
            throw messages::outcome(Errc::row_gone, file(), info_.definition().name);
    return lock;
}

void Recordset::Cursor::edit() {
    EditLock lock = lock_row();
    edit_.emplace(EditBuffer{std::move(lock), {}});
}

void Recordset::Cursor::add_new() {
    require_no_edit();
    settle();
    edit_.emplace();
}

void Recordset::Cursor::cancel_update() {
    if (!edit_) misuse(u"Geri alınacak kayıt değişikliği yok");
    EditBuffer edit = std::move(*edit_);
    edit_.reset();
    if (edit.lock) edit.lock->cancel();
}

void Recordset::Cursor::update() {
    Engine& engine = session_->engine();
    if (!edit_) misuse(u"Yazılacak kayıt değişikliği yok");
    EditBuffer edit = std::move(*edit_);
    edit_.reset();
    const bool adds = !edit.lock;
    if (adds) edit.lock.emplace(session_, info_.definition().name);
    session_->expect_end();
    if (adds) {
        engine.insert(info_, edit.values);
    } else if (!engine.update(info_, row(), edit.values)) {
        throw messages::outcome(Errc::row_gone, file(), info_.definition().name);
    }
    session_->has_written(*writes_);
    edit.lock->done();
    if (!adds && changes_key(edit)) refresh();
}

bool Recordset::Cursor::changes_key(const EditBuffer& edit) const {
    return std::ranges::any_of(index_->fields, [&](int field) { return edit.assigned(field) != nullptr; });
}

void Recordset::Cursor::erase() {
    EditLock lock = lock_row();
    session_->expect_end();
    if (!session_->engine().erase(info_, row()))
        throw messages::outcome(Errc::row_gone, file(), info_.definition().name);
    session_->has_written(*writes_);
    lock.done();
    place_ = Place::on_deleted;
}

}  // namespace store
