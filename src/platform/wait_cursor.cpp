#include "platform/wait_cursor.h"

#include <QGuiApplication>

WaitCursor::WaitCursor() {
    if (qGuiApp) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor() {
    if (qGuiApp) QGuiApplication::restoreOverrideCursor();
}
