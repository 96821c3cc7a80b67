// A second workstation: this test program started again with a role.
#pragma once

#include <QProcess>

int run_workstation(int argc, char** argv);

class Workstation {
public:
    // Roles are told in workstation.cpp. The drives are those of the test.
    Workstation(const QString& role, const QString& file, const QStringList& more = {});
    ~Workstation();

    // The next line that it says.
    QString hear();
    void kill();
    void go_on();
    bool is_running();
    // Lets it go on and waits for its end; its exit status.
    int finish();

private:
    QProcess process_;
};
