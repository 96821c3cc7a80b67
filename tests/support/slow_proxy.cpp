#include "support/slow_proxy.h"

#include <QTimer>
#include <queue>

#include <stdexcept>

namespace {

constexpr quint16 port = 3306;
// From the first of an answer to the last, in ms: the server shall have done all that it was told.
constexpr int whole_answer = 50;

}  // namespace

SlowProxy::SlowProxy(const QString& address, const QString& server, int delay) : server_(server), delay_(delay) {
    QObject::connect(listener_, &QTcpServer::newConnection, listener_, [this] { accept(); });
    QObject::connect(&thread_, &QThread::finished, listener_, &QObject::deleteLater);
    if (!listener_->listen(QHostAddress(address), port)) throw std::runtime_error("the line cannot be laid");
    listener_->moveToThread(&thread_);
    thread_.start();
}

SlowProxy::~SlowProxy() {
    thread_.quit();
    thread_.wait();
}

void SlowProxy::cut() {
    const auto abort_all = [this] {
        for (QTcpSocket* socket : listener_->findChildren<QTcpSocket*>()) socket->abort();
    };
    QMetaObject::invokeMethod(listener_, abort_all, Qt::BlockingQueuedConnection);
}

void SlowProxy::trap(const QByteArray& word, Fate fate) {
    const auto set = [&] { word_ = word, fate_ = fate, is_trapped_ = false; };
    QMetaObject::invokeMethod(listener_, set, Qt::BlockingQueuedConnection);
}

void SlowProxy::accept() {
    QTcpSocket* const client = listener_->nextPendingConnection();
    auto* const server = new QTcpSocket(client);
    const auto connection = std::make_shared<Connection>();
    QObject::connect(client, &QObject::destroyed, [connection] {});  // keeps it
    server->connectToHost(server_, port);
    if (!server->waitForConnected()) return client->deleteLater();
    forward(client, server, *connection, true);
    forward(server, client, *connection, false);
}

bool SlowProxy::is_spared(Connection& connection, const QByteArray& packet) {
    if (word_.isEmpty() || !packet.contains(word_)) return true;
    word_.clear();
    is_trapped_ = true;
    connection.loses_answer = fate_ == Fate::lose_answer;
    return connection.loses_answer;
}

void SlowProxy::forward(QTcpSocket* from, QTcpSocket* to, Connection& connection, bool is_client) {
    from->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    const auto under_way = std::make_shared<std::queue<QByteArray>>();
    QObject::connect(from, &QTcpSocket::readyRead, to, [=, this, &connection] {
        const QByteArray bytes = from->readAll();
        if (is_client) {
            if (std::exchange(connection.is_answered, false)) ++trips_;
            if (!is_spared(connection, bytes)) return from->abort();
        } else {
            connection.is_answered = true;
            if (connection.loses_answer) return QTimer::singleShot(whole_answer, to, [to] { to->abort(); });
        }
        under_way->push(bytes);
        QTimer::singleShot(delay_, Qt::PreciseTimer, to, [under_way, to] {
            if (to->isOpen()) to->write(under_way->front());
            under_way->pop();
        });
    });
    QObject::connect(from, &QTcpSocket::disconnected, to, [=, this] {
        QTimer::singleShot(delay_, Qt::PreciseTimer, to, [to] { to->disconnectFromHost(); });
        if (is_client) QTimer::singleShot(2 * whole_answer, from, &QObject::deleteLater);
    });
}
