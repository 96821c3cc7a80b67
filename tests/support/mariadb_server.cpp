#include "support/mariadb_server.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>

#include <mysql.h>

#include <csignal>
#include <filesystem>
#include <stdexcept>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace {

// The server refuses to run as root unless it is told to, is not in everybody's path, and shall not outlive a test that
// is cut off.
void start(QProcess& process, const QString& name, QStringList arguments) {
    QString program = QStandardPaths::findExecutable(name);
    if (program.isEmpty()) program = QStandardPaths::findExecutable(name, {"/usr/sbin", "/usr/local/sbin"});
    if (program.isEmpty()) throw std::runtime_error((name + " is missing: mariadb-server-core").toStdString());
#ifdef Q_OS_LINUX
    if (geteuid() == 0) arguments.prepend("--user=root");
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
#endif
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, QStringList("--no-defaults") + arguments);
}

// The data folder of a new server. It is made once and stays in the build folder: making one takes longer than a start.
std::filesystem::path new_data() {
    const std::string wanted = std::string(KURVO_TEST_DATA "/mariadb-") + mysql_get_client_info();
    if (std::filesystem::exists(wanted)) return wanted;
    const QTemporaryDir folder(KURVO_TEST_DATA "/mariadb-XXXXXX");
    const QString made = folder.filePath("data");
    QProcess process;
    start(process, "mariadb-install-db",
          {"--datadir=" + made, "--auth-root-authentication-method=normal", "--skip-test-db",
           "--innodb-log-file-size=4M"});
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error("mariadb-install-db fails: " + process.readAll().toStdString());
    QDir().rename(made, QString::fromStdString(wanted));  // another test program may have been first
    return wanted;
}

}  // namespace

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

MariadbServer::MariadbServer(const QString& address, const QStringList& arguments,
                             const QMap<QString, QByteArray>& files) {
    const QString data = folder_.filePath("data");
    std::filesystem::copy(new_data(), data.toStdString(), std::filesystem::copy_options::recursive);
    for (auto file = files.begin(); file != files.end(); ++file) {
        QFile beside(data + u'/' + file.key());
        if (!beside.open(QIODevice::WriteOnly) || beside.write(file.value()) < 0)
            throw std::runtime_error("the server's data folder cannot be written");
    }
    start(process_, "mariadbd",
          QStringList{"--datadir=" + data, "--bind-address=" + address, "--port=3306", "--socket=" + socket_,
                      "--pid-file=" + folder_.filePath("m.pid"), "--skip-log-bin", "--innodb-buffer-pool-size=16M",
                      "--innodb-log-file-size=4M", "--innodb-flush-log-at-trx-commit=0", "--skip-innodb-doublewrite",
                      "--skip-innodb-stats-persistent", "--skip-innodb-file-per-table", "--performance-schema=OFF",
                      "--skip-name-resolve"} +
              arguments);
}

MariadbServer::~MariadbServer() {
    process_.kill();
    process_.waitForFinished();
}

Administrator MariadbServer::administrator() {
    constexpr qint64 patience = 30000;  // ms
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        try {
            return Administrator(socket_);
        } catch (const std::runtime_error& failure) {
            if (!process_.waitForFinished(20) && clock.elapsed() < patience) continue;
            throw std::runtime_error("mariadbd does not come up: " + process_.readAll().toStdString() + failure.what());
        }
    }
}
