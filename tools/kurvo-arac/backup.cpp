#include "backup.h"

#include "platform/clock.h"
#include "platform/paths.h"
#include "platform/refusal.h"
#include "platform/text_file.h"
#include "school.h"
#include "store/relocation.h"
#include "store/snapshot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>

#include <stdexcept>
#include <system_error>

using namespace Qt::StringLiterals;

namespace backup {
namespace {

const QString note_file = u"yedek.txt"_s;
const QString note_heading = u"Kurvo yedeği"_s;

QString native_folder(const QString& name) {
    return QDir::cleanPath(QFileInfo(paths::native(name)).absoluteFilePath());
}

void make_folder(const QString& native) {
    if (!QDir().mkpath(native)) refuse(u"Klasör açılamadı: "_s + paths::office_name(native));
}

// The databases of a school by their names under its root. The cash book comes behind the terms: a payment is written
// behind its cash row, so a copy that has the payment has the cash row too, whatever lies between the two copies.
QStringList databases_of(const QString& root) {
    QStringList names;
    const auto add = [&](const school::File& file) { names.append(file.path.mid(school::folder(root).size())); };
    for (const school::File& file : school::term_files_of(root, school::terms_of(root))) add(file);
    for (const school::File& file : school::files_of(root, {})) add(file);
    return names;
}

// What belongs to the move of a school to a server: it stays with the school's folder.
QSet<QString> of_moves(const QString& folder, const QStringList& databases) {
    QSet<QString> names;
    for (const QString& database : databases)
        for (const QString& name : store::companions_of(folder + u'/' + database)) names << QDir::cleanPath(name);
    return names;
}

// What lies beside the databases, by native names relative to `folder`: no traces of an open database.
QStringList other_files(const QString& folder, const QStringList& databases) {
    QSet<QString> known = of_moves(folder, databases);
    known << folder + u'/' + note_file;
    for (const QString& name : databases) {
        const QString native = QDir::fromNativeSeparators(paths::native(folder + u'/' + name));
        known << native << native + u"-journal"_s;
    }
    QStringList names;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        if (const QString file = files.next(); !known.contains(file)) names.append(file.mid(folder.size() + 1));
    return names;
}

// Whole or not at all.
void copy_file(const QString& from, const QString& to) {
    make_folder(QFileInfo(to).path());
    QFile source(from);
    QSaveFile target(to);
    if (!source.open(QIODevice::ReadOnly)) {
        if (!source.exists()) return;  // gone since it was listed
        refuse(u"Dosya okunamadı: "_s + paths::office_name(from));
    }
    const QByteArray bytes = source.readAll();
    const bool written = target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() && target.commit();
    if (source.error() != QFileDevice::NoError || !written)
        refuse(u"Dosya kopyalanamadı: "_s + paths::office_name(from));
}

// Both in native spelling. The databases first, so that the photos that their rows name are there already.
Taken copy_all(const QString& from, const QString& to, const QStringList& databases) {
    store::Snapshot snapshot;
    for (const QString& name : databases) {
        make_folder(QFileInfo(paths::native(to + u'/' + name)).path());
        snapshot.add(paths::office_name(from) + u'\\' + name, paths::office_name(to) + u'\\' + name);
    }
    const bool one_moment = snapshot.take();
    const QStringList others = other_files(from, databases);
    const QSet<QString> kept = of_moves(to, databases);
    for (const QString& name : others)
        if (!kept.contains(to + u'/' + name)) copy_file(from + u'/' + name, to + u'/' + name);
    return {static_cast<int>(databases.size() + others.size()), one_moment};
}

void require_place(const QString& root, const QString& target, const QString& name) {
    if (name.trimmed().isEmpty()) refuse(u"Yedeğin klasörü verilmedi."_s);
    const QFileInfo place(target);
    if (place.exists() && !(place.isDir() && QDir(target).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot)))
        refuse(u"Yedeğin klasörü boş değil: "_s + name);
    if ((target + u'/').startsWith(root + u'/')) refuse(u"Yedek okulun klasörüne konamaz: "_s + name);
}

bool is_sound(const QString& file) {
    try {
        return store::damages(file).isEmpty();
    } catch (const std::system_error&) {
        throw;  // somebody holds it: that is no damage
    } catch (const std::runtime_error&) {
        return false;
    }
}

// A damage is copied as faithfully as the rows, and such a backup could not be put back.
void require_sound(const QString& folder, const QStringList& databases) {
    for (const QString& name : databases)
        if (!is_sound(paths::office_name(folder) + u'\\' + name))
            refuse(u"Okulun bir dosyası bozuk, yedek alınmadı: "_s + name);
}

// A server that cannot be reached, or whose tables are others, is found out before anything of the school is changed.
void make_ready(const QString& source, const QString& root, const QStringList& databases) {
    QStringList of_files;
    for (const QString& name : databases) {
        if (!paths::exists(root + name)) continue;
        if (store::server_place_of(root + name))
            store::make_ready(root + name, source + name);
        else
            of_files.append(root + name);
    }
    for (const QString& file : of_files)
        if (!is_sound(file)) store::set_aside(file);
}

}  // namespace

Taken take(const QString& root, const QString& target) {
    if (!school::exists(root)) refuse(u"Burada okul yok: "_s + root);
    const QString from = native_folder(root), to = native_folder(target), unfinished = to + u".yarim"_s;
    require_place(from, to, target);
    QDir(unfinished).removeRecursively();  // what a cut has left
    try {
        const QStringList databases = databases_of(root);
        const Taken taken = copy_all(from, unfinished, databases);
        require_sound(unfinished, databases);
        text_file::write_lines(paths::office_name(unfinished) + u'\\' + note_file,
                               {note_heading, clock_source::now().toString(u"dd.MM.yyyy HH:mm"_s), root});
        QDir().rmdir(to);
        if (!QDir().rename(unfinished, to)) refuse(u"Yedeğin klasörü açılamadı: "_s + target);
        return taken;
    } catch (...) {
        QDir(unfinished).removeRecursively();
        throw;
    }
}

QString taken_at(const QString& source) {
    const QString note = school::folder(source) + note_file;
    const QStringList lines = paths::exists(note) ? text_file::read_lines(note) : QStringList();
    if (lines.size() < 2 || lines[0] != note_heading) refuse(u"Bu klasör bir yedek değil: "_s + source);
    for (const QString& name : databases_of(source))
        if (!is_sound(school::folder(source) + name)) refuse(u"Yedekteki dosya bozuk ya da eksik: "_s + name);
    return lines[1];
}

QStringList put_back(const QString& source, const QString& root) {
    taken_at(source);
    const QStringList databases = databases_of(source);
    make_ready(school::folder(source), school::folder(root), databases);
    try {
        copy_all(native_folder(source), native_folder(root), databases);
    } catch (const std::runtime_error& failure) {
        refuse(QString::fromUtf8(failure.what()) +
               u"\nOkulun dosyalarının bir bölümü geri yüklenmiş olabilir; bütün programları kapatıp yineleyin."_s);
    }
    QStringList left;
    for (const QString& name : databases_of(root))
        if (!databases.contains(name)) left.append(name);
    return left;
}

}  // namespace backup
