#include "workstation.h"

#include "office.h"
#include "platform/paths.h"
#include "support/run_all.h"

#include <csignal>
#include <iostream>

#ifndef Q_OS_WIN
#include <sys/resource.h>
#endif

namespace {

// Says a word and waits for the one to go on.
void say(std::string word) {
    std::cout << word << std::endl;
    std::getline(std::cin, word);
}

void limit_disk([[maybe_unused]] const QString& file) {
#ifndef Q_OS_WIN
    signal(SIGXFSZ, SIG_IGN);
    const rlim_t room = static_cast<rlim_t>(QFileInfo(paths::native(file)).size() + 40000);
    const rlimit limit{room, room};
    setrlimit(RLIMIT_FSIZE, &limit);
#endif
}

// The one instalment stays in an edit until the word to go on.
void hold(store::Recordset& odeme) {
    odeme.Edit();
    odeme["TUTAR"] = 777;
    say("held");
    odeme.Update();
}

// So much in a scope that it does not fit in memory; then waits in the middle of it.
void fill(store::Database& database, store::Recordset& odeme) {
    auto excuses = database.OpenRecordset("Dmazeret");
    store::WriteScope scope(database);
    set(odeme, "TUTAR", 778);
    const QString long_excuse(10000, u'x');
    for (int i = 0; i < 4000; ++i) add(excuses, {{"ONO", i}, {"TARIH", "20261001"}, {"ACK", long_excuse}});
    say("held");
    scope.commit();
}

void raise(store::Recordset& odeme) {
    say("ready");
    for (int i = 0; i < 150; ++i) {
        odeme.MoveFirst();
        odeme.Edit();
        odeme["TUTAR"] = odeme["TUTAR"].number() + 1;
        odeme.Update();
    }
}

}  // namespace

// With a role on the command line this program is the second workstation of a test.
int main(int argc, char** argv) {
    if (argc < 4 || argv[1] != std::string_view("--workstation")) return run_all(argc, argv);
    const QCoreApplication application(argc, argv);
    const std::string_view role = argv[2];
    const QString file = QString::fromUtf8(argv[3]);
    if (role == "overflow") limit_disk(file);
    auto database = store::OpenDatabase(file);
    auto odeme = database.OpenRecordset("Odeme");
    if (role == "hold") hold(odeme);
    if (role == "raise") raise(odeme);
    if (role == "fill") fill(database, odeme);
    if (role == "overflow") say(refusal([&] { fill(database, odeme); }).toStdString());
    return 0;
}
