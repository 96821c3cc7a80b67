// Tables at the server and their definitions, which stand there as data: one line a field or index, in its order.
#include "store/conversion.h"
#include "store/mariadb_engine.h"
#include "store/mariadb_sql.h"
#include "store/messages.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <map>

namespace store {

namespace {

using mariadb_sql::quoted_name;

// What this process knows of the tables of a file.
using Definitions = std::vector<std::pair<std::string, TableInfo*>>;
std::map<std::string, Definitions>& known_definitions() {
    static std::map<std::string, Definitions> known;
    return known;
}

constexpr auto lock_table = "_lock";
constexpr auto retired_table = "_retired";

constexpr std::array type_names = {"text", "memo", "integer", "long", "number"};
static_assert(static_cast<std::size_t>(FieldType::number) + 1 == type_names.size());

std::string column_type(FieldType type) {
    if (is_text(type)) return "LONGTEXT";
    return is_whole(type) ? "BIGINT" : "DOUBLE";
}

// So long that the longest index of the table may hold it; letters take two bytes.
std::size_t key_size(const TableDef& table) {
    constexpr std::size_t most_bytes_of_index = 3000, most = 750;
    std::size_t texts = 1;
    for (const IndexDef& index : table.indexes) texts = std::max(texts, index.fields.size());
    return std::min(most, most_bytes_of_index / texts);
}

std::string definition_text(const TableDef& table) {
    std::string text;
    for (const FieldDef& field : table.fields)
        text += "field\t" + field.name + '\t' + type_names[static_cast<std::size_t>(field.type)] + '\t' +
                std::to_string(field.size) + '\n';
    for (const IndexDef& index : table.indexes) {
        text += "index\t" + index.name + (index.unique ? "\tunique" : "\tany") + (index.primary ? "\tprimary" : "\t-");
        for (const std::string& field : index.fields) text += '\t' + field;
        text += '\n';
    }
    return text;
}

TableDef parsed(const std::string& name, const std::string& text) {
    TableDef table{name, {}, {}};
    for (const QString& line : QString::fromStdString(text).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        if (parts.size() < 4) continue;
        if (parts[0] == QStringLiteral("field")) {
            const auto type = std::ranges::find(type_names, parts[2].toStdString());
            if (type == type_names.end()) continue;
            table.fields.push_back(
                {parts[1].toStdString(), static_cast<FieldType>(type - type_names.begin()), parts[3].toInt()});
        } else {
            IndexDef index{parts[1].toStdString(),
                           {},
                           parts[2] == QStringLiteral("unique"),
                           parts[3] == QStringLiteral("primary")};
            for (const QString& field : parts.mid(4)) index.fields.push_back(field.toStdString());
            table.indexes.push_back(std::move(index));
        }
    }
    return table;
}

std::string table_sql(const std::string& quoted, const TableDef& table) {
    std::string parts = "row_id BIGINT NOT NULL AUTO_INCREMENT PRIMARY KEY,row_version BIGINT NOT NULL DEFAULT 0";
    for (const FieldDef& field : table.fields) {
        parts += ',' + quoted_name(field.name) + ' ' + column_type(field.type);
        if (mariadb_sql::has_key_column(table, field))
            parts += ',' + quoted_name(mariadb_sql::key_column(field.name)) + " VARBINARY(" +
                     std::to_string(key_size(table)) + ')';
    }
    for (const IndexDef& index : table.indexes) {
        std::string keys;
        for (const std::string& name : index.fields) {
            const auto field = std::ranges::find(table.fields, name, &FieldDef::name);
            keys +=
                (keys.empty() ? "" : ",") + quoted_name(is_text(field->type) ? mariadb_sql::key_column(name) : name);
        }
        parts += std::string(index.unique ? ",UNIQUE" : ",") + " INDEX " + quoted_name(index.name) + " (" + keys + ')';
    }
    return "CREATE TABLE " + quoted + " (" + parts +
           ") ENGINE=InnoDB ROW_FORMAT=DYNAMIC DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_bin";
}

}  // namespace

void MariadbEngine::forget_definitions() {
    known_definitions().erase(identity_);
}

bool MariadbEngine::knows_definitions() const {
    return known_definitions().contains(identity_);
}

void MariadbEngine::read_definitions() {
    Definitions found;
    guarded({}, [&] {
        ask(
            "SELECT name,definition FROM " + quoted("_tables") + " ORDER BY ordinal",
            [&](std::size_t, const MariadbConnection::Row& row) {
                const std::string name(row.text(0)), definition(row.text(1));
                TableInfo& info =
                    table_info("server " + name + '\n' + definition, [&] { return parsed(name, definition); });
                found.emplace_back(name, &info);
            },
            [&] { found.clear(); });
    });
    known_definitions()[identity_] = std::move(found);
}

std::vector<TableDef> MariadbEngine::tables() {
    read_definitions();
    std::vector<TableDef> definitions;
    for (const auto& [name, info] : known_definitions()[identity_]) definitions.push_back(info->definition());
    return definitions;
}

TableInfo& MariadbEngine::table(std::string_view name) {
    for (const bool again : {false, true}) {
        if (again) read_definitions();
        const Definitions& known = known_definitions()[identity_];
        const auto found = std::ranges::find(known, name, &Definitions::value_type::first);
        if (found != known.end()) return *found->second;
    }
    throw messages::error(u"Tablo bulunamadı", name_, name);
}

// What a cut has left of an earlier attempt is not in the list and goes.
void MariadbEngine::create_table(const TableDef& table) {
    const Definitions& known = known_definitions()[identity_];
    if (std::ranges::find(known, table.name, &Definitions::value_type::first) != known.end())
        throw messages::error(u"Tablo zaten var", name_, table.name);
    TableDef ordered = table;
    std::ranges::stable_partition(ordered.indexes, [](const IndexDef& index) { return index.primary; });
    for (IndexDef& index : ordered.indexes) index.primary = &index == &ordered.indexes.front();
    const std::string list = quoted("_tables");
    guarded(table.name, [&] {
        connection().run("DROP TABLE IF EXISTS " + quoted(table.name) + ';' + table_sql(quoted(table.name), ordered) +
                         ";INSERT INTO " + list + " (name,definition) VALUES (" + mariadb_sql::literal(table.name) +
                         ',' + mariadb_sql::literal(definition_text(ordered)) + ')');
    });
    forget_definitions();
}

bool MariadbEngine::has_table(std::string_view table) {
    bool found = false;
    guarded(table, [&] {
        ask("SELECT 1 FROM information_schema.tables WHERE table_schema=DATABASE() AND table_name=" +
                mariadb_sql::literal(std::string_view(prefixed(table))),
            [&](std::size_t, const MariadbConnection::Row&) { found = true; });
    });
    return found;
}

bool MariadbEngine::exists(const QString& name, const ServerPlace& place) {
    MariadbEngine engine(name, place, New{});
    return engine.has_table(lock_table) || engine.has_table(retired_table);
}

// A renamed table is found by nobody, at any node, and the renaming waits for those who are using it.
void MariadbEngine::rename_lock(std::string_view from, std::string_view to) {
    guarded(from, [&] { connection().run("RENAME TABLE " + quoted(from) + " TO " + quoted(to)); });
}
void MariadbEngine::retire() {
    rename_lock(lock_table, retired_table);
}
void MariadbEngine::reinstate() {
    rename_lock(retired_table, lock_table);
}
bool MariadbEngine::is_retired() {
    return has_table(retired_table);
}

// The lock comes last and with its row: tables without it are what a cut has left.
void MariadbEngine::create(const QString& name, const ServerPlace& place, const std::vector<TableDef>& tables) {
    if (exists(name, place))
        throw messages::error(QStringLiteral("Sunucuda bu önekle tablolar zaten var (%1): %2").arg(place.prefix, name));
    MariadbEngine engine(name, place, New{});
    engine.forget_definitions();
    const std::string list = engine.quoted("_tables"), writers = engine.quoted("_writers"),
                      draft = engine.quoted("_newlock");
    engine.guarded({}, [&] {
        engine.connection().run("DROP TABLE IF EXISTS " + list + ',' + writers + ',' + draft + ";CREATE TABLE " + list +
                                " (ordinal INT NOT NULL AUTO_INCREMENT PRIMARY KEY,name VARCHAR(64) NOT NULL,"
                                "definition LONGTEXT NOT NULL) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 "
                                "COLLATE=utf8mb4_bin;CREATE TABLE " +
                                writers +
                                " (writer BIGINT PRIMARY KEY,commits BIGINT NOT NULL,token BIGINT NOT NULL,"
                                "seen TIMESTAMP NOT NULL DEFAULT CURRENT_TIMESTAMP ON UPDATE CURRENT_TIMESTAMP) "
                                "ENGINE=InnoDB");
    });
    for (const TableDef& table : tables) engine.create_table(table);
    engine.guarded({}, [&] {
        engine.connection().run("INSERT INTO " + writers + " (writer,commits,token) VALUES (0,0," +
                                std::to_string(QRandomGenerator::global()->generate64() >> 1) + ");CREATE TABLE " +
                                draft + " (id TINYINT PRIMARY KEY) ENGINE=InnoDB;INSERT INTO " + draft + " VALUES (1)");
    });
    engine.rename_lock("_newlock", lock_table);
}

void MariadbEngine::drop(const QString& name, const ServerPlace& place) {
    if (!exists(name, place)) return;
    MariadbEngine engine(name, place, New{});
    std::string all;
    for (const TableDef& table : engine.has_table("_tables") ? engine.tables() : std::vector<TableDef>())
        all += ',' + engine.quoted(table.name);
    engine.guarded({}, [&] {
        engine.connection().run("DROP TABLE IF EXISTS " + engine.quoted(lock_table) + ',' +
                                engine.quoted(retired_table) + all + ',' + engine.quoted("_tables") + ',' +
                                engine.quoted("_writers"));
    });
    engine.forget_definitions();
}

}  // namespace store
