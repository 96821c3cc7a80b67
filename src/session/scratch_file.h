// The day board's scratch database, on the workstation's own drive.
#pragma once

#include <QString>

inline const QString scratch_file = QStringLiteral("c:\\qlm\\siletud.mdb");
