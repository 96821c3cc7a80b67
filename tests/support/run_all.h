// How a folder's test program finds and runs its test classes, each a QObject with private slots. A test file holds one
// class and lists it by itself:
//
//   static const Registered<PathsTest> registered;
//   #include "paths_test.moc"
#pragma once

#include <QTest>

#include <vector>

inline std::vector<int (*)(int, char**)>& registered_tests() {
    static std::vector<int (*)(int, char**)> tests;
    return tests;
}

template <typename Test>
struct Registered {
    Registered() {
        registered_tests().push_back([](int argc, char** argv) {
            Test test;
            return QTest::qExec(&test, argc, argv);
        });
    }
};

// Runs every listed class; 1 where one failed. The main routine of a program that defines none of its own does this.
// Names on the command line pick test functions and are tried in every class, as QtTest has them.
int run_all(int argc, char** argv);
