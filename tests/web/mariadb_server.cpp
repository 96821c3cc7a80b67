#include "mariadb_server.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTest>

#include <mysql.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

QString loopback(int place) {
    const qint64 pid = QCoreApplication::applicationPid();
    return QString("127.%1.%2.%3").arg(1 + pid / 250 % 250).arg(pid % 250).arg(place);
}

Administrator::Administrator(const QString& socket) : connection_(mysql_init(nullptr), mysql_close) {
    mysql_options(connection_.get(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (mysql_real_connect(connection_.get(), nullptr, "root", "", nullptr, 0, socket.toUtf8(), 0) == nullptr)
        throw std::runtime_error(mysql_error(connection_.get()));
}

QStringList Administrator::query(const QString& statement) const {
    if (mysql_query(connection_.get(), statement.toUtf8()) != 0)
        throw std::runtime_error(mysql_error(connection_.get()));
    const std::unique_ptr<MYSQL_RES, void (*)(MYSQL_RES*)> result(mysql_store_result(connection_.get()),
                                                                  mysql_free_result);
    QStringList rows;
    while (const MYSQL_ROW row = result ? mysql_fetch_row(result.get()) : nullptr) {
        QStringList columns;
        for (unsigned i = 0; i < mysql_num_fields(result.get()); ++i) columns << QString::fromUtf8(row[i]);
        rows << columns.join(u'|');
    }
    return rows;
}

MariadbServer::MariadbServer() {
    const QString data = "--datadir=" + folder_.filePath("data");
    process_.setProcessChannelMode(QProcess::MergedChannels);
    run("mariadb-install-db", {data, "--auth-root-authentication-method=normal", "--skip-test-db"});
    if (!process_.waitForFinished() || process_.exitCode() != 0)
        throw std::runtime_error("mariadb-install-db fails: " + process_.readAll().toStdString());
    run("mariadbd", {data, "--bind-address=" + loopback(1), "--port=3306", "--socket=" + socket_,
                     "--pid-file=" + folder_.filePath("m.pid"), "--skip-log-bin", "--innodb-buffer-pool-size=16M",
                     "--innodb-log-file-size=4M", "--performance-schema=OFF", "--skip-name-resolve"});
    const auto answers = [this] {
        try {
            return administrator().query("select 1").size() == 1;
        } catch (const std::runtime_error&) {
            return false;
        }
    };
    if (!QTest::qWaitFor(answers, 30000))
        throw std::runtime_error("mariadbd does not come up: " + process_.readAll().toStdString());
}

MariadbServer::~MariadbServer() {
    process_.terminate();
    process_.waitForFinished();
}

// The server refuses to run as root unless it is told to, is not in everybody's path, and shall not outlive a test that
// is cut off.
void MariadbServer::run(const QString& name, QStringList arguments) {
    QString program = QStandardPaths::findExecutable(name);
    if (program.isEmpty()) program = QStandardPaths::findExecutable(name, {"/usr/sbin", "/usr/local/sbin"});
    if (program.isEmpty()) throw std::runtime_error((name + " is missing: mariadb-server-core").toStdString());
    if (geteuid() == 0) arguments.prepend("--user=root");
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process_.start(program, QStringList("--no-defaults") + arguments);
}
