// A real server of a test program's own, on loopback addresses that no other run uses.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

struct st_mysql;

// An address of 127.0.0.0/8; the server's is the first.
QString loopback(int place);

// Someone at the server's own socket with all rights. Failures throw with the server's words.
class Administrator {
public:
    explicit Administrator(const QString& socket);
    QStringList query(const QString& statement) const;  // the rows, columns joined by "|"

private:
    std::unique_ptr<st_mysql, void (*)(st_mysql*)> connection_;
};

// Throws with words where the machine has no server to start.
class MariadbServer {
public:
    MariadbServer();
    ~MariadbServer();

    Administrator administrator() const { return Administrator(socket_); }
    qint64 pid() const { return process_.processId(); }

private:
    void run(const QString& name, QStringList arguments);

    QTemporaryDir folder_;
    QString socket_ = folder_.filePath("s.sock");
    QProcess process_;
};
