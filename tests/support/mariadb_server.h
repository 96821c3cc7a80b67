// A real server of a test program's own, on loopback addresses that no other run uses.
#pragma once

#include <QMap>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

struct st_mysql;

// An address of 127.0.0.0/8; that of a single server is the first.
QString loopback(int place);

// Someone at the server's own socket with all rights. Failures throw with the server's words.
class Administrator {
public:
    explicit Administrator(const QString& socket);
    QStringList query(const QString& statement) const;  // the rows, columns joined by "|"

private:
    std::unique_ptr<st_mysql, void (*)(st_mysql*)> connection_;
};

// Killed with the object. Nothing of it reaches the disk in time: its data are worth no more than the test.
class MariadbServer {
public:
    // Begins to start; `arguments` come behind the usual ones, `files` (name, content) lie beside the tables. Throws
    // with words where the machine has no server to start.
    explicit MariadbServer(const QString& address = loopback(1), const QStringList& arguments = {},
                           const QMap<QString, QByteArray>& files = {});
    ~MariadbServer();

    // Waits for the server to come up.
    Administrator administrator();
    qint64 pid() const { return process_.processId(); }

private:
    QTemporaryDir folder_;
    QString socket_ = folder_.filePath("s.sock");
    QProcess process_;
};
