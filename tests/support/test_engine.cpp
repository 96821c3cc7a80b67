#include "support/test_engine.h"

#include "platform/paths.h"
#include "store/engine_copy.h"
#include "store/mariadb_engine.h"
#include "support/mariadb_server.h"

#include <QFile>

namespace test_engine {

namespace {

const QString database = QStringLiteral("okul"), user = QStringLiteral("ogrenciisleri"),
              password = QStringLiteral("gizli-sifre");

std::unique_ptr<MariadbServer>& running() {
    static std::unique_ptr<MariadbServer> server;
    return server;
}

MariadbServer& server() {
    if (running()) return *running();
    running() = std::make_unique<MariadbServer>();
    const Administrator root = running()->administrator();
    root.query("create database " + database);
    root.query("create user " + user + "@'%' identified by '" + password + "'");
    root.query("grant all on " + database + ".* to " + user + "@'%'");
    return *running();
}

template <typename Change>
void rewrite(const QString& path, Change change) {
    QFile file(paths::native(path));
    if (!file.open(QIODevice::ReadWrite)) throw std::runtime_error("the place of the server cannot be written");
    const QByteArray text = change(file.readAll());
    file.resize(0);
    file.seek(0);
    file.write(text);
}

}  // namespace

bool is_server() {
    return qgetenv("KURVO_TEST_ENGINE") == "mariadb";
}

void take_over(const QString& path) {
    if (!is_server()) return;
    static int files = 0;
    server();
    store::ServerPlace place;
    place.hosts = QStringList(loopback(1));
    place.database = database;
    place.user = user;
    place.password = password;
    place.prefix = QStringLiteral("f%1").arg(++files);
    {
        const auto from = store::open_engine(path, paths::native(path));
        store::MariadbEngine::create(path, place, from->tables());
        store::MariadbEngine to(path, place);
        store::copy_rows(*from, to);
    }
    rewrite(path, [&](const QByteArray&) { return store::server_place_text(place); });
}

void change_place(const QString& path, const QByteArray& before, const QByteArray& now) {
    rewrite(path, [&](QByteArray text) { return text.replace(before, now); });
}

Administrator administrator() {
    return server().administrator();
}

void kill_server() {
    running().reset();
}

}  // namespace test_engine
