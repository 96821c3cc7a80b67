#include "store/cursor.h"
#include "store/messages.h"

namespace store {

namespace {

class Category : public std::error_category {
public:
    const char* name() const noexcept override { return "kayıt deposu"; }
    std::string message(int code) const override {
        switch (static_cast<Errc>(code)) {
            case Errc::duplicate_key:
                return "Aynı anahtarla bir kayıt zaten var";
            case Errc::locked:
                return "Dosya başka bir iş istasyonu tarafından kilitli";
            case Errc::row_gone:
                return "Kayıt bu arada başka bir iş istasyonunca silinmiş ya da taşınmış";
        }
        return "Bilinmeyen hata";
    }
};

}  // namespace

const std::error_category& category() {
    static const Category instance;
    return instance;
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Recordset::Cursor& Recordset::cursor() const {
    if (!cursor_) throw messages::error(QStringLiteral("Tablo açılmamış ya da kapatılmış."));
    return *cursor_;
}

void Recordset::Index(std::string_view name) {
    cursor().set_index(name);
}
void Recordset::Seek(std::string_view comparison, std::initializer_list<Value> keys) {
    cursor().seek(comparison, {keys.begin(), keys.size()});
}
bool Recordset::NoMatch() const {
    return cursor().no_match();
}
bool Recordset::Eof() const {
    return cursor().at_end();
}
std::int64_t Recordset::RecordCount() const {
    return cursor().record_count();
}
bool Recordset::has_rows() const {
    return cursor().has_rows();
}
void Recordset::MoveFirst() {
    cursor().move_first();
}
void Recordset::MoveNext() {
    cursor().move_next();
}
void Recordset::MoveLast() {
    cursor().move_last();
}
Field Recordset::operator[](std::string_view name) {
    return Field(*this, cursor().field_number(name));
}
const TableDef& Recordset::definition() const {
    return cursor().info().definition();
}
void Recordset::Edit() {
    cursor().edit();
}
void Recordset::AddNew() {
    cursor().add_new();
}
void Recordset::Update() {
    cursor().update();
}
void Recordset::CancelUpdate() {
    cursor().cancel_update();
}
void Recordset::Delete() {
    cursor().erase();
}
bool Recordset::is_open() const {
    return cursor_ != nullptr && cursor_->is_open();
}
void Recordset::Close() {
    cursor();
    cursor_.reset();
}

const Value& Field::value() const {
    return owner_.cursor().value(field_);
}
QString Field::text() const {
    return owner_.cursor().text(field_);
}
double Field::number() const {
    return owner_.cursor().number(field_);
}
void Field::operator=(const Value& value) {
    owner_.cursor().assign(field_, value);
}
const Value& Field::required() const {
    const Value& found = value();
    if (found.is_null()) {
        const TableDef& table = owner_.definition();
        throw messages::error(QStringLiteral("Boş (Null) alan okunamaz (") +
                                  messages::name(table.fields[static_cast<std::size_t>(field_)].name) + u')',
                              owner_.cursor().file(), table.name);
    }
    return found;
}

void detail::seek_prefix(Recordset& records, std::initializer_list<Value> prefix) {
    records.cursor().seek_prefix({prefix.begin(), prefix.size()});
}
bool detail::on_prefix(Recordset& records, std::initializer_list<Value> prefix) {
    return records.cursor().on_prefix(prefix.size());
}

}  // namespace store
