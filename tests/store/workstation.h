// A second workstation, on the drives of the test: this test program started again with a role, or a program of its
// own.
#pragma once

#include <QCoreApplication>
#include <QProcess>

class Workstation {
public:
    Workstation(const QString& role, const QString& file) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), {"--workstation", role, file});
    }
    // Another program; what it says of its failures comes with the rest.
    Workstation(const QString& program, const QStringList& arguments) {
        process_.setProcessChannelMode(QProcess::MergedChannels);
        process_.start(program, arguments);
    }
    ~Workstation() { kill(); }

    QString hear() {
        while (!process_.canReadLine() && process_.waitForReadyRead(patience)) continue;
        return QString::fromUtf8(process_.readLine()).trimmed();
    }
    void kill() { process_.kill(), process_.waitForFinished(patience); }
    void go_on() { process_.write("on\n"), process_.waitForBytesWritten(patience); }
    qint64 pid() const { return process_.processId(); }
    // What it still says until its end.
    QString rest() {
        process_.waitForFinished(patience);
        return QString::fromUtf8(process_.readAll());
    }
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
