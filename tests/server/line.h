// The line from a workstation to the server that holds the files of a test.
#pragma once

#include "support/mariadb_server.h"
#include "support/slow_proxy.h"
#include "support/test_engine.h"

// Files that are made from now on lie on the server.
struct OnServer {
    OnServer() { qputenv("KURVO_TEST_ENGINE", "mariadb"); }
};

// From then on the files are reached through it.
struct Line : SlowProxy {
    explicit Line(const QStringList& files, int delay = 0) : SlowProxy(loopback(2), loopback(1), delay) {
        for (const QString& file : files)
            test_engine::change_place(file, loopback(1).toLatin1(), loopback(2).toLatin1());
    }
};
