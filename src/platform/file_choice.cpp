#include "platform/file_choice.h"

#include "platform/paths.h"

#include <QApplication>
#include <QFileDialog>

#include <utility>

namespace file_choice {

namespace {

std::function<QString(const QString&)> choice_of_test;

QString ask(const QString& folder) {
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), QStringLiteral("Dosya seç"),
                                        paths::native(folder));
}

}  // namespace

QString open(const QString& folder) {
    const QString chosen = choice_of_test ? choice_of_test(folder) : ask(folder);
    return chosen.isEmpty() ? QString() : paths::office_name(chosen);
}

Override::Override(std::function<QString(const QString&)> choice)
    : before_(std::exchange(choice_of_test, std::move(choice))) {}

Override::~Override() {
    choice_of_test = std::move(before_);
}

}  // namespace file_choice
