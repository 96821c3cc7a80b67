// A line to a server that takes its time, breaks when told to and counts how often a client waits for an answer. It
// has a thread of its own, so that the test may wait in the client library.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <atomic>

class SlowProxy {
public:
    enum class Fate {
        cut,          // the line breaks in front of the packet
        lose_answer,  // the line breaks when the server has answered
    };

    // Listens at `address` for the server at `server`, both at port 3306. Each direction takes `delay` (ms), however
    // much is under way.
    SlowProxy(const QString& address, const QString& server, int delay = 0);
    ~SlowProxy();

    // How often clients have sent something behind an answer or the greeting.
    std::int64_t round_trips() const { return trips_; }
    // All connections at once; new ones get through.
    void cut();
    // What the next packet of a client that holds `word` meets.
    void trap(const QByteArray& word, Fate fate);
    bool is_trapped() const { return is_trapped_; }  // whether the packet has come

private:
    struct Connection {
        bool is_answered = true, loses_answer = false;
    };

    void accept();
    void forward(QTcpSocket* from, QTcpSocket* to, Connection& connection, bool is_client);
    bool is_spared(Connection& connection, const QByteArray& packet);

    const QString server_;
    const int delay_;
    std::atomic<std::int64_t> trips_ = 0;
    std::atomic<bool> is_trapped_ = false;
    QByteArray word_;
    Fate fate_ = Fate::cut;
    QThread thread_;
    QTcpServer* listener_ = new QTcpServer;  // lives and ends in the thread, with its connections
};
