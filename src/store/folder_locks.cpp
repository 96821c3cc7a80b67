#include "store/folder_locks.h"

#include "store/messages.h"

#include <QCoreApplication>
#include <QFile>

#include <set>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace store {

namespace {

QString probe_name(const QString& folder) {
    return folder + QStringLiteral("/.kurvo-kilit-") + QString::number(QCoreApplication::applicationPid());
}

#ifdef Q_OS_WIN

// Two handles of one process are strangers to each other here.
bool second_is_kept_out(const QString& path) {
    const auto open = [&] {
        return CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ | GENERIC_WRITE,
                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    };
    const auto lock = [](HANDLE file) {
        OVERLAPPED place{};
        return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
    };
    const HANDLE first = open(), second = open();
    const bool kept_out = lock(first) && !lock(second);
    CloseHandle(second);
    CloseHandle(first);
    return kept_out;
}

bool may_write(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadWrite);
}

#else

bool take_lock(int file) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = 0x40000000;  // where the engine has its locks
    lock.l_len = 1;
    return fcntl(file, F_SETLK, &lock) == 0;
}

class Probe {
public:
    explicit Probe(const QString& path)
        : path_(QFile::encodeName(path)), file_(open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {}
    ~Probe() {
        if (file_ < 0) return;
        close(file_);
        unlink(path_.constData());
    }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    bool is_open() const { return file_ >= 0; }
    // The second process is a bare child, which does nothing but try the lock.
    bool keeps_second_out() const {
        if (!take_lock(file_)) return false;
        const pid_t child = fork();
        if (child == 0) _exit(take_lock(file_) ? 1 : 0);
        int status = -1;
        while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        return child > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

private:
    QByteArray path_;
    int file_;
};

#endif

}  // namespace

bool locks_hold(const QString& folder) {
#ifdef Q_OS_WIN
    const QString path = probe_name(folder);
    if (!may_write(path)) return true;
    const bool held = second_is_kept_out(path);
    QFile::remove(path);
    return held;
#else
    const Probe probe(probe_name(folder));
    return !probe.is_open() || probe.keeps_second_out();
#endif
}

void require_locks(const QString& folder, const QString& file) {
    static std::set<QString> tested;
    if (tested.contains(folder)) return;
    if (!locks_hold(folder))
        throw messages::error(u"Bu klasörde dosya kilitleri çalışmıyor; veriler korunamayacağı için açılmadı", file);
    tested.insert(folder);
}

}  // namespace store
