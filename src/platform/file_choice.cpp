#include "platform/file_choice.h"

#include "platform/paths.h"

#include <QApplication>
#include <QFileDialog>

namespace file_choice {

namespace {

QString ask(const QString& folder) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), QStringLiteral("Dosya seç"),
                                        paths::native(folder));
}

}  // namespace

QString open(const QString& folder) {
    const QString chosen = Override::current() ? Override::current()(folder) : ask(folder);
    return chosen.isEmpty() ? QString() : paths::office_name(chosen);
}

}  // namespace file_choice
