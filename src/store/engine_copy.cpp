#include "store/engine_copy.h"

#include "store/engine_write.h"
#include "store/messages.h"

#include <algorithm>
#include <utility>

namespace store {

namespace {

constexpr int rows_at_once = 500;
constexpr qsizetype longest_shown = 60;  // characters of a value

bool same_fields(const TableDef& left, const TableDef& right) {
    return std::ranges::equal(left.fields, right.fields, [](const FieldDef& a, const FieldDef& b) {
        return a.name == b.name && a.type == b.type && a.size == b.size;
    });
}

bool same_indexes(const TableDef& left, const TableDef& right) {
    return std::ranges::equal(left.indexes, right.indexes, [](const IndexDef& a, const IndexDef& b) {
        return a.name == b.name && a.fields == b.fields && a.unique == b.unique;
    });
}

std::vector<TableDef> tables_by_name(Engine& engine) {
    std::vector<TableDef> tables = engine.tables();
    std::ranges::sort(tables, {}, &TableDef::name);
    return tables;
}

// All rows of a table in the order of one of its indexes or of entry, read in batches.
class Walk {
public:
    Walk(Engine& engine, const TableInfo& table, int index, ProjectionPtr columns)
        : engine_(engine), table_(table), index_(index), columns_(std::move(columns)) {}

    // Goes to the next batch; false at the end.
    bool next_batch() {
        if (rows_.complete) return false;
        const bool is_first = rows_.size() == 0;
        const RowId last = is_first ? ReadRequest::no_row : rows_.row(rows_.size() - 1);
        const std::vector<Value> keys = is_first ? std::vector<Value>() : keys_of_last();
        engine_.read({is_first ? ReadRequest::Kind::first : ReadRequest::Kind::after, table_, index_, columns_, keys,
                      last, rows_at_once},
                     rows_);
        return rows_.size() > 0;
    }
    const Batch& rows() const { return rows_; }

    // Goes to the next row; false at the end.
    bool next() { return ++at_ < rows_.size() || (at_ = 0, next_batch()); }
    RowId row() const { return rows_.row(at_); }
    Value value(int field) { return rows_.value(at_, columns_->slot_of(field), texts_); }

private:
    std::vector<Value> keys_of_last() {
        std::vector<Value> keys;
        if (index_ != ReadRequest::by_entry)
            for (const int field : table_.index_at(index_).fields)
                keys.push_back(rows_.value(rows_.size() - 1, columns_->slot_of(field), texts_));
        return keys;
    }

    Engine& engine_;
    const TableInfo& table_;
    int index_;
    ProjectionPtr columns_;
    Batch rows_;
    std::size_t at_ = static_cast<std::size_t>(-1);
    ShortTexts texts_;
};

// One table of two files: the rows in the order of entry are paired, and then every index must have the pairs in the
// same order on both sides.
class Comparison {
public:
    Comparison(Engine& left, Engine& right, const std::string& table)
        : left_(left), right_(right), left_table_(left.table(table)), right_table_(right.table(table)) {}

    QString run() {
        const TableDef& table = left_table_.definition();
        if (!same_fields(table, right_table_.definition())) return tell(QStringLiteral("alanlar aynı değil"));
        if (!same_indexes(table, right_table_.definition())) return tell(QStringLiteral("dizinler aynı değil"));
        const std::int64_t left_count = left_.count(left_table_), right_count = right_.count(right_table_);
        if (left_count != right_count)
            return tell(QStringLiteral("kayıt sayısı aynı değil (%1, %2)").arg(left_count).arg(right_count));
        QString found = compare_rows(left_count);
        for (int index = 0; found.isEmpty() && index < static_cast<int>(table.indexes.size()); ++index)
            found = compare_order(index);
        return found;
    }

private:
    QString tell(const QString& words) const {
        return messages::name(left_table_.definition().name) + QStringLiteral(": ") + words;
    }

    QString compare_rows(std::int64_t count) {
        Walk left(left_, left_table_, ReadRequest::by_entry, left_table_.all_fields());
        Walk right(right_, right_table_, ReadRequest::by_entry, right_table_.all_fields());
        while (left.next() && right.next()) {
            left_rows_.push_back(left.row());
            right_rows_.push_back(right.row());
            for (int field = 0; field < static_cast<int>(left_table_.field_count()); ++field)
                if (const Value a = left.value(field), b = right.value(field); !(a == b))
                    return tell(QStringLiteral("%1 kaydında %2 aynı değil (%3, %4)")
                                    .arg(key_of(left), name_of(field), shown(a), shown(b)));
        }
        if (std::cmp_equal(left_rows_.size(), count)) return {};
        return tell(QStringLiteral("%1 kayıttan %2 okunuyor").arg(count).arg(left_rows_.size()));
    }

    QString compare_order(int index) {
        Walk left(left_, left_table_, index, keys_alone(left_table_, index));
        Walk right(right_, right_table_, index, keys_alone(right_table_, index));
        std::size_t count = 0;
        for (; left.next() && right.next(); ++count)
            if (place_of(left.row(), left_rows_) != place_of(right.row(), right_rows_)) break;
        if (count == left_rows_.size()) return {};
        return tell(QStringLiteral("%1 dizininde %2. kayıt aynı değil")
                        .arg(messages::name(left_table_.definition().indexes[static_cast<std::size_t>(index)].name))
                        .arg(count + 1));
    }

    static ProjectionPtr keys_alone(const TableInfo& table, int index) {
        return std::make_shared<const Projection>(table.index_at(index).fields, table.field_count());
    }
    static std::ptrdiff_t place_of(RowId row, const std::vector<RowId>& rows) {
        return std::ranges::lower_bound(rows, row) - rows.begin();
    }

    QString name_of(int field) const {
        return messages::name(left_table_.definition().fields[static_cast<std::size_t>(field)].name);
    }
    QString key_of(Walk& walk) const {
        QStringList parts;
        for (const int field : left_table_.index_at(0).fields)
            parts << name_of(field) + u' ' + shown(walk.value(field));
        return parts.join(QStringLiteral(", "));
    }
    static QString shown(const Value& value) {
        if (value.is_null()) return QStringLiteral("Null");
        const QString text = value.text();
        return text.size() > longest_shown ? text.left(longest_shown) + u'…' : text;
    }

    Engine& left_;
    Engine& right_;
    const TableInfo& left_table_;
    const TableInfo& right_table_;
    std::vector<RowId> left_rows_, right_rows_;  // in the order of entry
};

void require_same_fields(const TableDef& from, Engine& to) {
    if (!same_fields(from, to.table(from.name).definition()))
        throw messages::error(QStringLiteral("Tablonun alanları iki tarafta aynı değil: ") + messages::name(from.name));
}

// Within a write of `to`; how many rows.
std::int64_t append_rows(Engine& from, Engine& to, const std::string& table) {
    const TableInfo& source = from.table(table);
    const TableInfo& target = to.table(table);
    std::int64_t rows = 0;
    for (Walk walk(from, source, ReadRequest::by_entry, source.all_fields()); walk.next_batch();) {
        to.insert_rows(target, walk.rows());
        rows += static_cast<std::int64_t>(walk.rows().size());
    }
    return rows;
}

}  // namespace

void require_room(Engine& from, Engine& to) {
    for (const TableDef& table : from.tables()) require_same_fields(table, to);
}

void add_rows(Engine& from, Engine& to, const std::string& table, bool empty_first) {
    require_same_fields(from.table(table).definition(), to);
    EngineWrite write(to);
    if (empty_first) to.erase_all(to.table(table));
    append_rows(from, to, table);
    write.commit();
}

void copy_rows(Engine& from, Engine& to, const TableDone& done) {
    require_room(from, to);
    EngineWrite write(to);
    for (const TableDef& definition : from.tables()) {
        to.erase_all(to.table(definition.name));
        const std::int64_t rows = append_rows(from, to, definition.name);
        if (done) done(definition.name, rows);
    }
    write.commit();
}

QString first_difference(Engine& left, Engine& right) {
    const std::vector<TableDef> tables = tables_by_name(left);
    if (!std::ranges::equal(tables, tables_by_name(right), {}, &TableDef::name, &TableDef::name))
        return QStringLiteral("tablolar aynı değil");
    for (const TableDef& table : tables)
        if (const QString found = Comparison(left, right, table.name).run(); !found.isEmpty()) return found;
    return {};
}

}  // namespace store
