#include "platform/paths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace paths {

namespace {

QString drives_folder() {
    const QString told = qEnvironmentVariable("KURVO_DRIVES");
    if (!told.isEmpty()) return told;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/kurvo");
}

bool is_latin_letter(QChar letter) {
    return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
}

// The components of what follows a drive or a share: ".." does not lead out of it.
QString inside(const QString& root, const QString& rest) {
    QStringList kept;
    for (const QString& part : rest.split(u'/', Qt::SkipEmptyParts)) {
        if (part == QStringLiteral("..")) {
            if (!kept.isEmpty()) kept.removeLast();
        } else if (part != QStringLiteral(".")) {
            kept.append(part);
        }
    }
    QString path = kept.isEmpty() ? root : root + u'/' + kept.join(u'/');
    if (rest.endsWith(u'/')) path += u'/';
    return path;
}

QString mapped(const QString& name) {
    QString path = name;
    path.replace(u'\\', u'/');
    if (path.startsWith(QStringLiteral("//"))) return inside(drives_folder() + QStringLiteral("/unc"), path.mid(2));
    if (path.size() >= 2 && path[1] == u':' && is_latin_letter(path[0]))
        return inside(drives_folder() + u'/' + path[0].toLower(), path.mid(2));
    return path;
}

// I and i are one letter by the plain rule, I and ı, İ and i by the Turkish one.
bool same_letter(QChar a, QChar b) {
    if (a == b || a.toCaseFolded() == b.toCaseFolded()) return true;
    const auto pair = [&](char16_t capital, char16_t small) {
        return (a == capital && b == small) || (a == small && b == capital);
    };
    return pair(u'I', u'ı') || pair(u'İ', u'i');
}

bool same_name(QStringView a, QStringView b) {
    return std::ranges::equal(a, b, same_letter);
}

// The spelling under which `component` lies in `folder`; itself where there is none.
QString spelling_in(const QString& folder, const QString& component) {
    const QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names)
        if (name.compare(component, Qt::CaseInsensitive) == 0) return name;
    for (const QString& name : names)
        if (same_name(name, component)) return name;
    return component;
}

QString looked_up(const QString& path) {
    QString found = path.startsWith(u'/') ? QStringLiteral("/") : QString();
    bool lost = false;
    for (const QString& part : path.split(u'/', Qt::SkipEmptyParts)) {
        QString next = found + part;
        if (!lost && !QFileInfo::exists(next)) {
            next = found + spelling_in(found.isEmpty() ? QStringLiteral(".") : found, part);
            lost = !QFileInfo::exists(next);  // nothing below a missing folder can be found
        }
        found = next + u'/';
    }
    if (!path.endsWith(u'/') && found.size() > 1) found.chop(1);
    return found;
}

}  // namespace

QString native(const QString& name) {
#ifdef Q_OS_WIN
    return name;
#else
    const QString path = mapped(name);
    return path.isEmpty() || QFileInfo::exists(path) ? path : looked_up(path);
#endif
}

QString office_name(const QString& native_path) {
#ifdef Q_OS_WIN
    return QDir::toNativeSeparators(native_path);
#else
    const QString inside_drives = QDir(drives_folder()).relativeFilePath(native_path);
    const qsizetype drive_ends = inside_drives.indexOf(u'/');
    if (inside_drives.startsWith(QStringLiteral("..")) || drive_ends < 0) return native_path;
    const QString drive = inside_drives.left(drive_ends);
    if (drive != QStringLiteral("unc") && drive.size() != 1) return native_path;
    QString name = (drive.size() == 1 ? drive + u':' : QStringLiteral("/")) + inside_drives.mid(drive_ends);
    return name.replace(u'/', u'\\');
#endif
}

bool exists(const QString& name) {
    return QFileInfo(native(name)).isFile();
}

bool remove(const QString& name) {
    const QString path = native(name);
    return QFile::remove(path) || !QFileInfo(path).isFile();
}

QStringList files_in(const QString& folder, const QString& ending) {
    QStringList names = QDir(native(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    names.removeIf([&](const QString& name) { return !same_name(QStringView(name).right(ending.size()), ending); });
    names.sort(Qt::CaseSensitive);
    return names;
}

}  // namespace paths
