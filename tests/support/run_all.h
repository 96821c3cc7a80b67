// The main routine of a folder's test program: runs every test class in turn.
#pragma once

#include <QApplication>
#include <QTest>

// KURVO_TEST_MAIN(PathsTest, NumbersTest): each class is a QObject with private slots. Names on the command line pick test
// functions and are tried in every class, as QtTest has them.
template <typename... Tests>
int run_all(int argc, char** argv) {
    QApplication application(argc, argv);
    application.setAttribute(Qt::AA_Use96Dpi);
    int failed = 0;
    const auto run = [&](QObject&& test) { failed += QTest::qExec(&test, argc, argv); };
    (run(Tests{}), ...);
    return failed == 0 ? 0 : 1;
}

#define KURVO_TEST_MAIN(...) \
    int main(int argc, char** argv) { return run_all<__VA_ARGS__>(argc, argv); }
