#include "platform/text_file.h"

#include "platform/code_page.h"
#include "platform/paths.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <stdexcept>

namespace text_file {

namespace {

[[noreturn]] void fail(const QString& name, const QString& what) {
    throw std::runtime_error(QStringLiteral("\"%1\" dosyası %2").arg(name, what).toStdString());
}

// The cause in the office's language; the platform's own text is of the machine and holds the mapped path.
QString cause(const QFileDevice& file) {
    const QFileInfo info(file.fileName());
    const QFileInfo folder(info.path());
    if (!folder.isDir()) return QStringLiteral("klasörü bulunamadı.");
    if (info.isDir()) return QStringLiteral("bu adda bir klasör var.");
    switch (file.error()) {
        case QFileDevice::PermissionsError:
            return QStringLiteral("izin yok.");
        case QFileDevice::ResourceError:
        case QFileDevice::WriteError:
            return QStringLiteral("disk dolu ya da bağlantı kesildi.");
        default:
            return QStringLiteral("klasöre ya da dosyaya erişilemedi.");
    }
}

QByteArray read_bytes(const QString& name) {
    QFile file(paths::native(name));
    if (!file.exists()) fail(name, QStringLiteral("bulunamadı."));
    if (!file.open(QIODevice::ReadOnly)) fail(name, QStringLiteral("okunamadı: ") + cause(file));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) fail(name, QStringLiteral("okunamadı: ") + cause(file));
    return bytes;
}

// One item after the other off a line.
class ItemReader {
public:
    explicit ItemReader(QStringView line) : rest_(line) {}

    bool more() const { return more_; }
    QString next() {
        rest_ = rest_.trimmed();
        const bool in_quotes = rest_.startsWith(u'"');
        const QString quoted = in_quotes ? quoted_item() : QString();
        const qsizetype comma = rest_.indexOf(u',');
        more_ = comma >= 0;
        const QStringView bare = rest_.left(more_ ? comma : rest_.size()).trimmed();
        rest_ = more_ ? rest_.mid(comma + 1) : QStringView();
        return in_quotes ? quoted : bare.toString();  // what stands between a closing quote and the comma is dropped
    }

private:
    // Up to the closing quote; two quotes are one of the text. A text that is never closed ends with its line.
    QString quoted_item() {
        QString text;
        qsizetype at = 1;
        while (at < rest_.size()) {
            const QChar letter = rest_[at++];
            if (letter == u'"') {
                if (at == rest_.size() || rest_[at] != u'"') break;
                ++at;
            }
            text += letter;
        }
        rest_ = rest_.mid(at);
        return text;
    }

    QStringView rest_;
    bool more_ = true;  // an empty line is one empty item
};

}  // namespace

QStringList read_lines(const QString& name) {
    const QString text = code_page::decode(read_bytes(name));
    QStringList lines;
    for (qsizetype begin = 0; begin < text.size();) {
        qsizetype end = begin;
        while (end < text.size() && text[end] != u'\r' && text[end] != u'\n') ++end;
        lines.append(text.mid(begin, end - begin));
        const bool pair = end + 1 < text.size() && text[end] == u'\r' && text[end + 1] == u'\n';
        begin = end + (pair ? 2 : 1);
    }
    return lines;
}

void write_bytes(const QString& name, const QByteArray& bytes) {
    QSaveFile file(paths::native(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        fail(name, QStringLiteral("yazılamadı: ") + cause(file));
}

void write_lines(const QString& name, const QStringList& lines) {
    QString text;
    for (const QString& line : lines) text += line + QStringLiteral("\r\n");
    QByteArray bytes;
    try {
        bytes = code_page::encode(text);
    } catch (const std::runtime_error& unmappable) {
        fail(name, QStringLiteral("yazılamadı: ") + QString::fromUtf8(unmappable.what()));
    }
    write_bytes(name, bytes);
}

std::vector<Item> read_items_with_lines(const QString& name) {
    std::vector<Item> items;
    int number = 0;
    for (const QString& line : read_lines(name)) {
        ++number;
        for (ItemReader reader(line); reader.more();)
            items.push_back({reader.next(), number, line.trimmed().isEmpty()});
    }
    return items;
}

QStringList read_items(const QString& name) {
    QStringList texts;
    for (const Item& item : read_items_with_lines(name)) texts.append(item.text);
    return texts;
}

QString quoted(const QString& text) {
    QString inner = text;
    return u'"' + inner.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace text_file
