// A folder of drives of a test's own, gone when the object goes.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

class Drives {
public:
    Drives() : before_(qgetenv("KURVO_DRIVES")) { qputenv("KURVO_DRIVES", folder_.path().toUtf8()); }
    ~Drives() { before_.isNull() ? qunsetenv("KURVO_DRIVES") : qputenv("KURVO_DRIVES", before_); }
    Drives(const Drives&) = delete;
    Drives& operator=(const Drives&) = delete;

    // The native path of a file below the folder of drives ("c/qlm/tak.txt").
    QString path(const QString& below) const { return folder_.filePath(below); }

    void put(const QString& below, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(path(below)).path());
        QFile file(path(below));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("the drives of the test cannot be written");
    }
    QByteArray bytes(const QString& below) const {
        QFile file(path(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir folder_;
    QByteArray before_;
};
