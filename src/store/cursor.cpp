#include "store/cursor.h"

#include "store/conversion.h"
#include "store/messages.h"

#include <algorithm>

namespace store {

namespace {

using Kind = ReadRequest::Kind;

constexpr int first_batch = 32;
constexpr int batch_after_write = 8;
constexpr int least_batch_from_afar = 128;  // a trip takes longer than so many rows
constexpr std::size_t most_values = 16384;  // of a batch that has grown
constexpr std::size_t least_width = 8;      // that is reckoned with

}  // namespace

Recordset::Cursor::Cursor(std::shared_ptr<Database::Session> session, std::string_view table)
    : session_(std::move(session)),
      info_(session_->engine().table(table)),
      index_(&info_.index_at(0)),
      writes_(&session_->writes_to(info_.definition().name)),
      followers_(info_.field_count(), 0),
      decoded_(info_.field_count()) {}

void Recordset::Cursor::misuse(QStringView what) const {
    throw messages::error(what, file(), info_.definition().name);
}

void Recordset::Cursor::set_index(std::string_view name) {
    require_no_edit();
    const int number = info_.index(name);
    if (number < 0) misuse(QStringLiteral("İndeks bulunamadı (") + messages::name(name) + u')');
    index_number_ = number;
    index_ = &info_.index_at(number);
    place_ = Place::at_first;
}

void Recordset::Cursor::turn() {
    is_wide_ = false;
    ++turn_;
}

// The first rows from afar come whole: each field that is found missing later costs a trip of its own.
const ProjectionPtr& Recordset::Cursor::next_columns(FieldUse& use) const {
    return session_->engine().is_far() && use.is_new() ? info_.all_fields() : use.next();
}

void Recordset::Cursor::read(Kind kind, FieldUse& use, std::span<const Value> keys, RowId row) {
    place_ = Place::nowhere;  // until the rows are there
    use_ = &use;
    at_ = 0;
    too_narrow_ = false;
    turn();
    Engine& engine = session_->engine();
    if (engine.is_far()) limit_ = std::max(limit_, least_batch_from_afar);
    const int limit = kind == Kind::last || &use == &index_->point ? 1 : limit_;
    engine.read({kind, info_, index_number_, next_columns(use), keys, row, limit, leading_ ? &*leading_ : nullptr},
                batch_);
    stamp_ = *writes_;
}

void Recordset::Cursor::seek(std::string_view comparison, std::span<const Value> keys) {
    require_no_edit();
    const std::size_t fields = index_->fields.size();
    if (comparison != "=" && comparison != ">") misuse(u"Aramada yalnız = ve > kullanılabilir");
    if (keys.empty() || keys.size() > fields) misuse(u"Aramada anahtar sayısı indekse uymuyor");

    seek_keys_.clear();
    bool has_null = false;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto& field = info_.definition().fields[static_cast<std::size_t>(index_->fields[i])];
        seek_keys_.push_back(key_value(keys[i], field.type));
        has_null |= keys[i].is_null();
    }
    limit_ = first_batch;
    leading_.reset();
    if (comparison == "=") {
        const bool one_row = index_->unique && keys.size() == fields && !has_null;
        read(Kind::equal, one_row ? index_->point : index_->range, seek_keys_);
        batch_.complete = false;  // rows with other keys follow
    } else {
        if (keys.size() > 1) leading_ = seek_keys_.front();
        read(Kind::after, index_->range, seek_keys_);
    }
    place_ = batch_.size() > 0 ? Place::on_row : Place::nowhere;
}

void Recordset::Cursor::seek_prefix(std::span<const Value> prefix) {
    std::vector<Value> keys(prefix.begin(), prefix.end());
    if (keys.size() >= index_->fields.size()) return seek("=", keys);
    const auto& next = info_.definition().fields[static_cast<std::size_t>(index_->fields[keys.size()])];
    keys.push_back(is_text(next.type) ? Value(QStringLiteral("")) : Value());
    seek(">", keys);
}

bool Recordset::Cursor::on_prefix(std::size_t count) {
    if (no_match() || at_end()) return false;
    require_row();
    for (std::size_t i = 0; i < count; ++i)
        if (compare_keys(current_key(i), seek_keys_[i]) != 0) return false;
    return true;
}

void Recordset::Cursor::settle() {
    if (place_ == Place::at_first) move_first_or_end();
}

void Recordset::Cursor::move_first_or_end() {
    limit_ = first_batch;
    leading_.reset();
    read(Kind::first, index_->range);
    place_ = batch_.size() > 0 ? Place::on_row : Place::past_end;
}

bool Recordset::Cursor::at_end() {
    settle();
    return place_ == Place::past_end || place_ == Place::nowhere;
}

bool Recordset::Cursor::has_rows() {
    settle();
    if (place_ == Place::on_row && is_fresh()) return true;
    Batch first;
    session_->engine().read({Kind::first, info_, index_number_, info_.all_fields()}, first);
    return first.size() > 0;
}

void Recordset::Cursor::move_first() {
    require_no_edit();
    move_first_or_end();
    if (place_ == Place::past_end) misuse(u"Tabloda kayıt yok");
}

void Recordset::Cursor::move_last() {
    require_no_edit();
    leading_.reset();
    read(Kind::last, index_->range);
    batch_.complete = false;
    place_ = batch_.size() > 0 ? Place::on_row : Place::past_end;
    limit_ = batch_after_write;
    if (place_ == Place::past_end) misuse(u"Tabloda kayıt yok");
}

void Recordset::Cursor::move_next() {
    require_no_edit();
    settle();
    if (place_ == Place::past_end || place_ == Place::nowhere) misuse(u"İlerlenecek kayıt yok");
    const bool is_last_read = at_ + 1 == batch_.size();
    turn();
    if (!is_fresh() || (is_last_read ? !batch_.complete : too_narrow_)) return read_on();
    place_ = is_last_read ? Place::past_end : Place::on_row;
    if (!is_last_read) ++at_;
}

void Recordset::Cursor::read_on() {
    const int most_rows =
        static_cast<int>(most_values / std::max<std::size_t>(batch_.projection().width(), least_width));
    limit_ = is_fresh() ? std::min(limit_ * 4, most_rows) : batch_after_write;
    if (leading_ && compare_keys(current_key(0), *leading_) != 0) leading_.reset();
    const std::vector<Value> keys = current_keys();
    const bool may_have_equals = !index_->unique || std::ranges::any_of(keys, &Value::is_null);
    read(Kind::after, index_->range, keys, may_have_equals ? row() : ReadRequest::no_row);
    place_ = batch_.size() > 0 ? Place::on_row : Place::past_end;
}

void Recordset::Cursor::require_row() {
    settle();
    switch (place_) {
        case Place::on_row:
            return;
        case Place::on_deleted:
            misuse(u"Kayıt silindi, okunamaz");
        case Place::past_end:
            misuse(u"Son kaydın ötesinde kayıt yok");
        default:
            misuse(u"Aranan kayıt bulunmadı, okunamaz");
    }
}

void Recordset::Cursor::require_no_edit() const {
    session_->engine();
    if (edit_) misuse(u"Kayıt değişikliği bitmeden başka kayda geçilemez");
}

const Value& Recordset::Cursor::current_key(std::size_t key) {
    const int field = index_->fields[key];
    return decoded(field, {batch_, at_, batch_.projection().slot_of(field)});
}

std::vector<Value> Recordset::Cursor::current_keys() {
    std::vector<Value> keys;
    for (std::size_t key = 0; key < index_->fields.size(); ++key) keys.push_back(current_key(key));
    return keys;
}

bool Recordset::Cursor::read_row(Batch& result, const ProjectionPtr& columns) {
    session_->engine().read({Kind::row, info_, index_number_, columns, {}, row()}, result);
    return result.size() > 0;
}

void Recordset::Cursor::refresh() {
    Batch now;
    const std::uint64_t stamp = *writes_;
    if (!read_row(now, next_columns(*use_))) throw messages::outcome(Errc::row_gone, file(), info_.definition().name);
    now.complete = false;
    batch_ = std::move(now);
    at_ = 0;
    stamp_ = stamp;
    limit_ = batch_after_write;
    too_narrow_ = false;
    turn();
}

// Rows are read field by field in the same order: what followed this field in the last row is tried first.
int Recordset::Cursor::field_number(std::string_view name) {
    int& follower = followers_[static_cast<std::size_t>(last_field_)];
    if (info_.definition().fields[static_cast<std::size_t>(follower)].name != name) {
        const int field = info_.field(name);
        if (field < 0) misuse(QStringLiteral("Alan bulunamadı (") + messages::name(name) + u')');
        follower = field;
    }
    return last_field_ = follower;
}

Recordset::Cursor::Spot Recordset::Cursor::find(int field) {
    session_->engine();
    if (place_ != Place::on_row) require_row();
    if (!is_fresh()) refresh();
    use_->touch(field);
    const int slot = batch_.projection().slot_of(field);
    return slot >= 0 ? Spot{batch_, at_, slot} : find_in_wide_row(field);
}

// A field that nobody had asked for: the row is read whole, and the next batch brings the field along.
Recordset::Cursor::Spot Recordset::Cursor::find_in_wide_row(int field) {
    too_narrow_ = true;
    if (!is_wide_ && !read_row(wide_, info_.all_fields()))
        throw messages::outcome(Errc::row_gone, file(), info_.definition().name);
    is_wide_ = true;
    return {wide_, 0, field};
}

const Value& Recordset::Cursor::decoded(int field, const Spot& spot) {
    Decoded& kept = decoded_[static_cast<std::size_t>(field)];
    if (kept.turn != turn_) kept = {turn_, spot.batch.value(spot.row, spot.slot, session_->texts())};
    return kept.value;
}

const Value& Recordset::Cursor::value(int field) {
    if (edit_) {
        session_->engine();
        if (const Value* assigned = edit_->assigned(field)) return *assigned;
        static const Value null;
        if (!edit_->lock) return null;
    }
    return decoded(field, find(field));
}

// What is read once needs no Value.
QString Recordset::Cursor::text(int field) {
    if (edit_) return value(field).text();
    const Spot spot = find(field);
    return spot.batch.text(spot.row, spot.slot, session_->texts());
}

double Recordset::Cursor::number(int field) {
    if (edit_) return value(field).number();
    const Spot spot = find(field);
    return spot.batch.number(spot.row, spot.slot, session_->texts());
}

}  // namespace store
