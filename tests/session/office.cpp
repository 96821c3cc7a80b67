#include "office.h"

#include "platform/paths.h"
#include "platform/rich_text.h"
#include "school.h"

#include <QDir>
#include <QFile>

namespace {

const QString root = QStringLiteral("c:\\okul\\");
const QString first_term = QStringLiteral("2026");

QString version_file() {
    return Office::data(QStringLiteral("Dsys.mdb"));
}

}  // namespace

Folders::Folders() {
    for (const QString& folder : {data({}), QStringLiteral("c:\\qlm\\")}) QDir().mkpath(paths::native(folder));
}

Office::Office(const QStringList& terms) {
    school::create(root, terms);
    school::set_user(root, QStringLiteral("OYA"), QStringLiteral("1011"));
}

void Folders::write(const QString& name, const QByteArray& bytes) {
    QFile file(paths::native(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("test file not written");
}

QByteArray Folders::bytes(const QString& name) {
    QFile file(paths::native(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

SessionContext Folders::session() {
    SessionContext session;
    session.dataRoot = root;
    session.termCode = first_term;
    session.userCode = QStringLiteral("OYA");
    session.versionText = QStringLiteral("21.1");
    return session;
}

launch::HandOver Office::hand_over() {
    launch::HandOver values;
    values.version = QStringLiteral("21.1");
    values.root = root;
    values.school = QStringLiteral("ÖZEL IŞIK, MERKEZ");
    values.term = first_term;
    values.hide_archived = QStringLiteral("1");
    values.rights = QStringLiteral("111111");
    values.user = QStringLiteral("OYA");
    values.photos = QStringLiteral("c:\\okul\\foto\\");
    return values;
}

void Office::add(const QString& file, std::string_view table,
                 std::initializer_list<std::pair<const char*, store::Value>> fields) {
    store::Database database = store::OpenDatabase(file);
    store::Recordset rows = database.OpenRecordset(table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
}

void Office::student(const QString& term, int number, const QString& name) {
    add(data(term + QStringLiteral("ogr.mdb")), "Ogrenci",
        {{"ONO", number}, {"ADSOY", name}, {"SINIF", "12A"}, {"SAKLA", "0"}});
}

QString Office::version_row() {
    store::Database database = store::OpenDatabase(version_file());
    store::Recordset versions = database.OpenRecordset("SBtab");
    versions.Index("X1");
    versions.Seek("=", {"RMA"});
    return versions.NoMatch() ? QString() : rich_text::plain(versions["SB1"].text());
}

void Office::set_version_row(const QString& stored) {
    store::Database database = store::OpenDatabase(version_file());
    store::Recordset versions = database.OpenRecordset("SBtab");
    versions.Index("X1");
    versions.Seek("=", {"RMA"});
    if (stored.isNull()) return versions.Delete();
    versions.Edit();
    versions["SB1"] = stored;
    versions.Update();
}

bool Office::runs(const QString& program) {
    store::Database database = store::OpenDatabase(QStringLiteral("c:\\qlm\\Psys.mdb"));
    store::Recordset programs = database.OpenRecordset("prg");
    programs.Index("PX");
    programs.Seek("=", {program});
    return !programs.NoMatch();
}
