// A second workstation: this test program started again with a role, on the drives of the test.
#pragma once

#include <QCoreApplication>
#include <QProcess>

class Workstation {
public:
    Workstation(const QString& role, const QString& file) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), {"--workstation", role, file});
    }
    ~Workstation() { kill(); }

    QString hear() {
        while (!process_.canReadLine() && process_.waitForReadyRead(patience)) continue;
        return QString::fromUtf8(process_.readLine()).trimmed();
    }
    void kill() { process_.kill(), process_.waitForFinished(patience); }
    void go_on() { process_.write("on\n"), process_.waitForBytesWritten(patience); }
    // Lets it go on and waits for its end; its exit status.
    int finish() {
        go_on();
        process_.waitForFinished(patience);
        return process_.state() == QProcess::NotRunning ? process_.exitCode() : -1;
    }

private:
    static constexpr int patience = 60000;  // ms
    QProcess process_;
};
