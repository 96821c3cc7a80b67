#include "moving.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "school.h"

#include <QHash>
#include <QLockFile>
#include <QRegularExpression>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace moving {
namespace {

constexpr qsizetype longest_prefix = 20;

QString name_of(const QString& file) {
    return file.mid(file.lastIndexOf(u'\\') + 1);
}

QStringList files_of(const QString& root) {
    QStringList files;
    for (const school::File& file : school::files_of(root, school::terms_of(root)))
        if (paths::exists(file.path)) files.append(file.path);
    return files;
}

// Two moves of one school at a time would take the one's new file for the other's old one.
class Turn {
public:
    explicit Turn(const QString& root)
        : name_(school::data_file(root, u"tasima.kilit"_s)), lock_(paths::native(name_)) {
        lock_.setStaleLockTime(0);
        if (lock_.tryLock(0)) return;
        if (lock_.error() == QLockFile::LockFailedError)
            refuse(
                u"Bu okul şu anda taşınıyor; taşıma başka bir makinede yarıda kesildiyse bu dosyayı silip yineleyin: "_s +
                name_);
        refuse(u"Klasöre yazılamıyor: "_s + name_);
    }

private:
    QString name_;
    QLockFile lock_;
};

// All of them are ours before the first one is moved: a school at work is refused as a whole.
template <typename Move>
std::vector<std::pair<QString, std::unique_ptr<Move>>> begun(const QString& root, bool on_server) {
    std::vector<std::pair<QString, std::unique_ptr<Move>>> moves;
    for (const QString& file : files_of(root))
        if (store::server_place_of(file).has_value() == on_server)
            moves.emplace_back(file, std::make_unique<Move>(file));
    return moves;
}

// Of the files that are to be moved; no two of a school may have the same one.
QHash<QString, QString> prefixes_of(const QStringList& files, const QString& front) {
    QHash<QString, QString> file_of, prefix_by_file;
    for (const QString& file : files) {
        const QString prefix = prefix_of(file, front);
        if (file_of.contains(prefix))
            refuse(u"İki dosyanın sunucudaki öneki aynı olurdu (%1): %2, %3"_s.arg(prefix, file_of[prefix], file));
        file_of[prefix] = file;
        prefix_by_file[file] = prefix;
    }
    return prefix_by_file;
}

}  // namespace

QString prefix_of(const QString& file, const QString& front) {
    static const QHash<QChar, QChar> plain{{u'ç', u'c'}, {u'ğ', u'g'}, {u'ı', u'i'},
                                           {u'ö', u'o'}, {u'ş', u's'}, {u'ü', u'u'}};
    QString prefix = front.isEmpty() ? QString() : front + u'_';
    for (const QChar letter : name_of(file).section(u'.', 0, -2).toLower()) prefix += plain.value(letter, letter);
    prefix.replace(QRegularExpression(u"[^a-z0-9_]"_s), u"_"_s);
    if (prefix.size() > longest_prefix)
        refuse(u"Sunucudaki önek en çok %1 karakter olabilir (%2): %3"_s.arg(longest_prefix).arg(prefix, file));
    return prefix;
}

int to_server(const QString& root, store::ServerPlace place, const QString& front, bool replace, const Told& told) {
    const QHash<QString, QString> prefixes = prefixes_of(files_of(root), front);
    const Turn turn(root);
    const auto moves = begun<store::MoveToServer>(root, false);
    const auto place_of = [&](const QString& file) {
        place.prefix = prefixes[file];
        return place;
    };
    for (const auto& [file, move] : moves)
        if (!replace) move->require_free(place_of(file));
    for (const auto& [file, move] : moves) {
        told.begins(name_of(file), u"önek "_s + prefixes[file]);
        move->run(place_of(file), told.copied);
        told.done(name_of(file), u"sunucuda; eskisi %1.yerel"_s.arg(name_of(file)));
    }
    return static_cast<int>(moves.size());
}

int to_files(const QString& root, const Told& told) {
    const Turn turn(root);
    const auto moves = begun<store::MoveToFile>(root, true);
    for (const auto& [file, move] : moves) {
        told.begins(name_of(file), u"sunucudan"_s);
        move->run(told.copied);
        told.done(name_of(file), u"klasörde; sunucu bilgisi %1.sunucu"_s.arg(name_of(file)));
    }
    return static_cast<int>(moves.size());
}

int remove_left_tables(const QString& root) {
    const Turn turn(root);
    int removed = 0;
    for (const QString& file : files_of(root)) removed += store::remove_left_tables(file) ? 1 : 0;
    return removed;
}

}  // namespace moving
