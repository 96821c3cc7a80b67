// Which engine holds the files that the tests make: with KURVO_TEST_ENGINE=mariadb a server of the test program's own.
#pragma once

#include <QString>

class Administrator;

namespace test_engine {

bool is_server();
// To be called for each new file, open for nobody: moves what it holds to the server, where that is the engine, and
// leaves a text in its place that names the server. `path` as in platform/paths.h.
void take_over(const QString& path);
// Puts `now` in the place of `before` in the text that names the server.
void change_place(const QString& path, const QByteArray& before, const QByteArray& now);
// With all rights, at the server that holds the files.
Administrator administrator();
// Ends the server as a power cut does; the next file starts another one.
void kill_server();

}  // namespace test_engine
