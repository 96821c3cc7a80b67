#include "workstation.h"

#include "office.h"
#include "platform/paths.h"

#include <QCoreApplication>

#include <csignal>
#include <iostream>

#ifndef Q_OS_WIN
#include <sys/resource.h>
#endif

namespace {

constexpr int patience = 60000;  // ms

void say(const char* word) {
    std::cout << word << std::endl;
}

void await_word() {
    std::string word;
    std::getline(std::cin, word);
}

// Student 7's first instalment stays in an edit until the word to go on.
void hold(const QString& file) {
    auto database = store::OpenDatabase(file);
    auto odeme = database.OpenRecordset("Odeme");
    odeme.Seek("=", {7, "20261001"});
    odeme.Edit();
    odeme["TUTAR"] = 777;
    say("held");
    await_word();
    odeme.Update();
}

// So much in a scope that it does not fit in memory; then waits in the middle of it.
void fill(const QString& file) {
    auto database = store::OpenDatabase(file);
    auto excuses = database.OpenRecordset("Dmazeret");
    auto odeme = database.OpenRecordset("Odeme");
    store::WriteScope scope(database);
    odeme.Edit();
    odeme["TUTAR"] = 778;
    odeme.Update();
    const QString long_excuse(10000, u'x');
    for (int i = 0; i < 4000; ++i) add(excuses, {{"ONO", i}, {"TARIH", "20261001"}, {"ACK", long_excuse}});
    say("held");
    await_word();
    scope.commit();
}

// Raises TUTAR of student 7's first instalment so many times by one.
void raise(const QString& file, int times) {
    auto database = store::OpenDatabase(file);
    auto odeme = database.OpenRecordset("Odeme");
    say("ready");
    await_word();
    for (int i = 0; i < times; ++i) {
        odeme.Seek("=", {7, "20261001"});
        odeme.Edit();
        odeme["TUTAR"] = odeme["TUTAR"].number() + 1;
        odeme.Update();
    }
}

// Writes until the disk takes no more.
void overflow(const QString& file) {
#ifndef Q_OS_WIN
    signal(SIGXFSZ, SIG_IGN);
    const rlim_t room = static_cast<rlim_t>(QFileInfo(paths::native(file)).size() + 40000);
    const rlimit limit{room, room};
    setrlimit(RLIMIT_FSIZE, &limit);
#endif
    auto database = store::OpenDatabase(file);
    auto odeme = database.OpenRecordset("Odeme");
    try {
        store::WriteScope scope(database);
        for (int i = 0; i < 100000; ++i) add_instalment(odeme, 8, QString::number(10000000 + i), i);
        scope.commit();
        say("written");
    } catch (const std::exception& failure) {
        say(failure.what());
    }
    await_word();
}

}  // namespace

int run_workstation(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::string role = argv[2];
    const QString file = QString::fromUtf8(argv[3]);
    if (role == "hold") hold(file);
    if (role == "fill") fill(file);
    if (role == "raise") raise(file, std::atoi(argv[4]));
    if (role == "overflow") overflow(file);
    return 0;
}

Workstation::Workstation(const QString& role, const QString& file, const QStringList& more) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(QCoreApplication::applicationFilePath(), QStringList{"--workstation", role, file} + more);
}

Workstation::~Workstation() {
    if (process_.state() != QProcess::NotRunning) kill();
}

QString Workstation::hear() {
    while (!process_.canReadLine() && process_.waitForReadyRead(patience)) {
    }
    return QString::fromUtf8(process_.readLine()).trimmed();
}

void Workstation::kill() {
    process_.kill();
    process_.waitForFinished(patience);
}

void Workstation::go_on() {
    process_.write("on\n");
    process_.waitForBytesWritten(patience);
}

bool Workstation::is_running() {
    QCoreApplication::processEvents();
    return process_.state() == QProcess::Running;
}

int Workstation::finish() {
    go_on();
    process_.waitForFinished(patience);
    return process_.state() == QProcess::NotRunning ? process_.exitCode() : -1;
}
