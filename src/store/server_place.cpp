#include "store/server_place.h"

#include "store/messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <map>

namespace store {

namespace {

constexpr auto heading = "[kurvo-sunucu]";
// A database is one page at least. Opening and closing one beside the engine would drop the locks of this process.
constexpr qint64 smallest_database = 4096;

// Reads one line after the other into a place; a false answer refuses the value.
class Reader {
public:
    explicit Reader(ServerPlace& place) : place_(place) {}

    bool take(const QString& key, const QString& value) {
        const auto setter = setters_.find(key);
        return setter != setters_.end() && setter->second(value);
    }

private:
    bool set(QString& target, const QString& value) {
        target = value;
        return !value.isEmpty();
    }
    bool set_port(const QString& value) {
        bool is_number = false;
        place_.port = value.toInt(&is_number);
        return is_number && place_.port > 0 && place_.port < 65536;
    }
    bool set_tls(const QString& value) {
        place_.tls = value == QStringLiteral("evet");
        return place_.tls || value == QStringLiteral("hayir");
    }
    bool set_prefix(const QString& value) {
        static const QRegularExpression legal(QStringLiteral("^[a-z0-9_]{1,20}$"));
        place_.prefix = value;
        return legal.match(value).hasMatch();
    }
    bool set_hosts(const QString& value) {
        static const QRegularExpression legal(QStringLiteral("^[A-Za-z0-9._-]+(:[0-9]{1,5})?$"));
        for (const QString& host : value.split(u',', Qt::SkipEmptyParts)) place_.hosts << host.trimmed();
        return !place_.hosts.isEmpty() &&
               std::ranges::all_of(place_.hosts, [](const QString& host) { return legal.match(host).hasMatch(); });
    }

    ServerPlace& place_;
    const std::map<QString, std::function<bool(const QString&)>> setters_ = {
        {QStringLiteral("motor"), [](const QString& value) { return value == QStringLiteral("mariadb"); }},
        {QStringLiteral("sunucu"), [this](const QString& value) { return set_hosts(value); }},
        {QStringLiteral("port"), [this](const QString& value) { return set_port(value); }},
        {QStringLiteral("veritabani"), [this](const QString& value) { return set(place_.database, value); }},
        {QStringLiteral("kullanici"), [this](const QString& value) { return set(place_.user, value); }},
        {QStringLiteral("parola"), [this](const QString& value) { return set(place_.password, value), true; }},
        {QStringLiteral("parola_dosyasi"), [this](const QString& value) { return set(place_.password_file, value); }},
        {QStringLiteral("onek"), [this](const QString& value) { return set_prefix(value); }},
        {QStringLiteral("tls"), [this](const QString& value) { return set_tls(value); }},
        {QStringLiteral("sertifika"), [this](const QString& value) { return set(place_.certificate, value); }},
    };
};

QString password_in(const ServerPlace& place, const QString& name, const QString& native_path) {
    QFile file(QFileInfo(native_path).dir().filePath(place.password_file));
    if (!file.open(QIODevice::ReadOnly)) throw messages::error(u"Sunucu parolasının dosyası okunamıyor", name);
    return QString::fromUtf8(file.readLine()).trimmed();
}

[[noreturn]] void refuse(const QString& name, qsizetype line) {
    throw messages::error(QStringLiteral("Sunucu bilgisi anlaşılmıyor: %1, satır %2").arg(name).arg(line));
}

}  // namespace

std::optional<ServerPlace> read_server_place(const QString& name, const QString& native_path) {
    QFile file(native_path);
    if (file.size() >= smallest_database || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    QString text = QString::fromUtf8(file.readAll());
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    const QStringList lines = text.split(u'\n');
    if (lines.front().trimmed() != QLatin1String(heading)) return std::nullopt;

    ServerPlace place;
    Reader reader(place);
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith(u'#')) continue;
        const qsizetype sign = line.indexOf(u'=');
        if (sign < 0 || !reader.take(line.left(sign).trimmed(), line.mid(sign + 1).trimmed())) refuse(name, i + 1);
    }
    if (place.hosts.isEmpty() || place.database.isEmpty() || place.user.isEmpty() || place.prefix.isEmpty())
        throw messages::error(u"Sunucu bilgisi eksik (sunucu, veritabani, kullanici, onek)", name);
    if (!place.password_file.isEmpty()) place.password = password_in(place, name, native_path);
    return place;
}

QByteArray server_place_text(const ServerPlace& place) {
    QStringList lines{QLatin1String(heading),
                      QStringLiteral("motor=mariadb"),
                      QStringLiteral("sunucu=") + place.hosts.join(u','),
                      QStringLiteral("port=%1").arg(place.port),
                      QStringLiteral("veritabani=") + place.database,
                      QStringLiteral("kullanici=") + place.user};
    if (place.password_file.isEmpty())
        lines << QStringLiteral("parola=") + place.password;
    else
        lines << QStringLiteral("parola_dosyasi=") + place.password_file;
    lines << QStringLiteral("onek=") + place.prefix
          << (place.tls ? QStringLiteral("tls=evet") : QStringLiteral("tls=hayir"));
    if (!place.certificate.isEmpty()) lines << QStringLiteral("sertifika=") + place.certificate;
    return (lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8();
}

}  // namespace store
