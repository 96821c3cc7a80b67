#include "store/engine.h"

#include "store/folder_locks.h"
#include "store/mariadb_engine.h"
#include "store/messages.h"
#include "store/server_place.h"
#include "store/sqlite_engine.h"

#include <QFileInfo>

namespace store {

void Engine::insert_rows(const TableInfo& table, const Batch& rows) {
    ShortTexts texts;
    std::vector<Assignment> values(table.field_count());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t field = 0; field < values.size(); ++field)
            values[field] = {static_cast<int>(field),
                             rows.value(row, rows.projection().slot_of(static_cast<int>(field)), texts)};
        insert(table, values);
    }
}

std::unique_ptr<Engine> open_engine(const QString& name, const QString& native_path) {
    const QFileInfo file(native_path);
    if (!file.exists()) throw messages::error(u"Dosya bulunamadı", name);
    if (!file.isFile()) throw messages::error(u"Dosya değil, klasör", name);
    if (const auto place = read_server_place(name, native_path)) return std::make_unique<MariadbEngine>(name, *place);
    require_locks(file.absolutePath(), name);
    return std::make_unique<SqliteEngine>(name, native_path);
}

}  // namespace store
