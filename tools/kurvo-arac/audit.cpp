#include "audit.h"

#include "audit_checks.h"
#include "platform/refusal.h"
#include "school.h"
#include "store/relocation.h"
#include "store/snapshot.h"

#include <QTemporaryDir>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace audit {
namespace {

// A file of the school, and its copy of the moment that is looked at.
struct Copy {
    store::FileKind kind;
    QString name;  // "2026ogr.mdb"
    QString term;  // empty for another file
    QString path;
    store::Database file;  // closed where it cannot be read
};

class Audit {
public:
    explicit Audit(const QString& root) {
        for (const school::File& file : school::files_of(root, {})) take(file, {});
        for (const QString& term : school::terms_of(root)) take(school::term_files_of(root, {term}).front(), term);
        snapshot_.take();
    }

    std::vector<Finding> run() {
        for (Copy& copy : copies_)
            if (has_sound_structure(copy.name, copy.path) && has_its_tables(copy)) keep(copy);
        for (Copy& copy : copies_)
            if (store::Database* file = readable(copy)) check(copy, *file);
        return std::move(findings_);
    }

private:
    void take(const school::File& file, const QString& term) {
        const QString name = file.path.mid(file.path.lastIndexOf(u'\\') + 1);
        const QString path = folder_.filePath(name);
        bool on_server = false;
        if (!attempt(name, [&] { on_server = store::server_place_of(file.path).has_value(); })) return;
        if (on_server && !has_sound_structure(name, file.path)) return;  // not all of it comes over with the rows
        if (attempt(name, [&] { snapshot_.add(file.path, path); }))
            copies_.push_back({file.kind, name, term, path, {}});
    }

    // A failure is a finding of its own.
    template <typename Step>
    bool attempt(const QString& name, Step step) {
        try {
            step();
            return true;
        } catch (const std::runtime_error& error) {
            findings_.push_back({true, name, QString::fromUtf8(error.what()).remove(folder_.path() + u'/')});
            return false;
        }
    }

    bool has_sound_structure(const QString& name, const QString& path) {
        QStringList damages;
        if (!attempt(name, [&] { damages = store::damages(path); })) return false;
        for (const QString& damage : damages) findings_.push_back({true, name, u"dosya bozuk: "_s + damage});
        return damages.isEmpty();
    }

    bool has_its_tables(Copy& copy) {
        return attempt(copy.name, [&] {
            copy.file = store::OpenDatabase(copy.path);
            for (const store::TableDef& table : store::catalogue(copy.kind)) {
                store::Recordset rows = copy.file.OpenRecordset(table.name);
                for (const store::IndexDef& index : table.indexes) rows.Index(index.name);
                for (const store::FieldDef& field : table.fields)
                    if (std::ranges::none_of(rows.definition().fields,
                                             [&](const auto& one) { return one.name == field.name; }))
                        throw std::runtime_error("alan yok: " + table.name + "." + field.name);
            }
        });
    }

    // Where the rows of other files look for it.
    void keep(Copy& copy) {
        if (!copy.term.isEmpty()) terms_.emplace(copy.term, std::move(copy.file));
        if (copy.kind == store::FileKind::reference) reference_ = &copy.file;
        usable_.append(copy.name);
    }
    store::Database* readable(Copy& copy) {
        if (!usable_.contains(copy.name)) return nullptr;
        return copy.term.isEmpty() ? &copy.file : &terms_.at(copy.term);
    }

    void check(const Copy& copy, store::Database& file) {
        Books books{copy.kind, file, reference_, terms_};
        for (const auto& checks : {value_checks(), link_checks()})
            for (const Check& check : checks)
                attempt(copy.name, [&] {
                    check.run(books, [&](store::Recordset& row, const QString& words) {
                        findings_.push_back({check.fault, copy.name + u", "_s + place_of(row), words});
                    });
                });
    }

    static QString place_of(store::Recordset& row) {
        const store::TableDef& table = row.definition();
        QString place = QString::fromStdString(table.name);
        if (table.indexes.empty()) return place;
        for (const std::string& field : table.indexes.front().fields)
            place += u", %1 %2"_s.arg(QString::fromStdString(field), row[field].text());
        return place;
    }

    QTemporaryDir folder_;
    store::Snapshot snapshot_;
    std::vector<Copy> copies_;
    std::map<QString, store::Database> terms_;
    store::Database* reference_ = nullptr;
    QStringList usable_;
    std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> look_over(const QString& root) {
    if (!school::exists(root)) refuse(u"Burada okul yok: "_s + root);
    return Audit(root).run();
}

}  // namespace audit
