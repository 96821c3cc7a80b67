#include "school.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "platform/rich_text.h"
#include "store/record.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace school {
namespace {

// The level of the data files that this set-up makes.
const QString data_version = u"21.1"_s;
const QString version_key = u"RMA"_s;
const QString term_ending = u"ogr.mdb"_s;

void make_folder(const QString& name) {
    if (!QDir().mkpath(paths::native(name))) refuse(u"Klasör açılamadı: "_s + name);
}

void make_folder_of(const QString& path) {
    make_folder(path.left(path.lastIndexOf(u'\\')));
}

// Files that were made so far; they go again unless all of them could be made.
class Making {
public:
    ~Making() {
        for (const QString& path : made_) paths::remove(path);
    }
    void make(const File& file) {
        make_folder_of(file.path);
        store::create_file(file.path, store::catalogue(file.kind));
        made_.append(file.path);
    }
    void keep() { made_.clear(); }

private:
    QStringList made_;
};

void refuse_existing(const std::vector<File>& files) {
    QStringList there;
    for (const File& file : files)
        if (paths::exists(file.path)) there.append(file.path);
    if (!there.isEmpty()) refuse(u"Var olan dosyaya dokunulmaz: "_s + there.join(u", "_s));
}

// A term's name is what stands before the first "ogr" of its file, so it cannot hold that itself.
void check_terms(const QStringList& terms) {
    if (terms.isEmpty()) refuse(u"En az bir dönem gerekir."_s);
    QStringList seen;
    for (const QString& term : terms) {
        const bool fit = !term.contains(u"ogr"_s) && !term.contains(u'\\') && !term.contains(u'/');
        if (!fit) refuse(u"Dönem kodu olamaz: "_s + term);
        if (seen.contains(term, Qt::CaseInsensitive)) refuse(u"Dönem iki kez verildi: "_s + term);
        seen.append(term);
    }
}

void write_version(const QString& root) {
    store::Database database = store::OpenDatabase(data_file(root, u"Dsys.mdb"_s));
    store::Recordset versions = database.OpenRecordset("SBtab");
    versions.AddNew();
    versions["KOD"] = version_key;
    versions["SB1"] = rich_text::from_plain(data_version);
    versions.Update();
}

}  // namespace

QString folder(const QString& name) {
    QString result = name;
    if (!result.endsWith(u'\\') && !result.endsWith(u'/')) result += u'\\';
    return result;
}

QString data_file(const QString& root, const QString& name) {
    return folder(root) + u"data\\"_s + name;
}
QString term_file(const QString& root, const QString& term) {
    return data_file(root, term + term_ending);
}
QString reference_file(const QString& root) {
    return data_file(root, u"Bilgi.mdb"_s);
}
QString photo_folder(const QString& root) {
    return folder(root) + u"foto\\"_s;
}

std::vector<File> files_of(const QString& root, const QStringList& terms) {
    std::vector<File> files{{reference_file(root), store::FileKind::reference},
                            {data_file(root, u"Dsys.mdb"_s), store::FileKind::version},
                            {data_file(root, u"kbase.mdb"_s), store::FileKind::users}};
    for (const File& file : term_files_of(root, terms)) files.push_back(file);
    return files;
}

std::vector<File> term_files_of(const QString& root, const QStringList& terms) {
    std::vector<File> files;
    for (const QString& term : terms) files.push_back({term_file(root, term), store::FileKind::term});
    return files;
}

bool exists(const QString& root) {
    return paths::exists(reference_file(root));
}

void remove(const std::vector<File>& files) {
    for (const File& file : files) paths::remove(file.path);
}

QStringList terms_of(const QString& root) {
    QStringList terms = paths::files_in(folder(root) + u"data\\"_s, term_ending);
    for (QString& term : terms) term = term.left(term.indexOf(u"ogr"_s, 0, Qt::CaseInsensitive));
    return terms;
}

void create(const QString& root, const QStringList& terms) {
    check_terms(terms);
    std::vector<File> files = files_of(root, terms);
    refuse_existing(files);
    if (!paths::exists(programs_file)) files.push_back({programs_file, store::FileKind::programs});
    Making making;
    for (const File& file : files) making.make(file);
    write_version(root);
    making.keep();
    make_folder(photo_folder(root));
}

void add_terms(const QString& root, const QStringList& terms) {
    check_terms(terms);
    for (const File& file : files_of(root, {}))
        if (!paths::exists(file.path)) refuse(u"Okulun dosyası eksik: "_s + file.path);
    const std::vector<File> added = term_files_of(root, terms);
    refuse_existing(added);
    Making making;
    for (const File& file : added) making.make(file);
    making.keep();
    make_folder(photo_folder(root));
}

void create_programs_file() {
    if (paths::exists(programs_file)) return;
    Making making;
    making.make({programs_file, store::FileKind::programs});
    making.keep();
}

QString version_of(const QString& root) {
    store::Database database = store::OpenDatabase(data_file(root, u"Dsys.mdb"_s));
    store::Recordset versions = database.OpenRecordset("SBtab");
    versions.Index("X1");
    versions.Seek("=", {version_key});
    return versions.NoMatch() ? QString() : rich_text::plain(versions["SB1"].text());
}

void set_user(const QString& root, const QString& code, const QString& options) {
    store::Database database = store::OpenDatabase(data_file(root, u"kbase.mdb"_s));
    store::Recordset users = database.OpenRecordset("users");
    users.Index("KX");
    users.Seek("=", {code});
    if (users.NoMatch()) {
        users.AddNew();
        users["KOD"] = code;
    } else {
        users.Edit();
    }
    users["DKOD"] = rich_text::from_plain(options);
    users.Update();
}

}  // namespace school
