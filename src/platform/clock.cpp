#include "platform/clock.h"

#include <QStringBuilder>

namespace clock_source {

QDateTime now() {
    return Override::current() ? Override::current()() : QDateTime::currentDateTime();
}

QDate today() {
    return now().date();
}

}  // namespace clock_source

namespace dates {

namespace {

const QString point = QStringLiteral(".");

QString digits(int number, int width) {
    return QString::number(number).rightJustified(width, u'0');
}

}  // namespace

QString key(const QDate& date) {
    if (!date.isValid()) return {};
    return digits(date.year(), 4) + digits(date.month(), 2) + digits(date.day(), 2);
}

QDate from_key(const QString& key) {
    if (key.size() != 8) return {};
    for (const QChar letter : key)
        if (letter < u'0' || letter > u'9') return {};
    const QStringView text(key);
    return QDate(text.left(4).toInt(), text.mid(4, 2).toInt(), text.mid(6, 2).toInt());
}

QString shown(const QString& key) {
    const QStringView text(key);
    return text.mid(6, 2) % point % text.mid(4, 2) % point % text.left(4);
}

QString shown(const QDate& date) {
    return date.isValid() ? shown(key(date)) : QString();
}

QString key_of_shown(const QString& dd) {
    return dd.mid(6, 4) + dd.mid(3, 2) + dd.left(2);
}

QString time_key(const QTime& time) {
    return digits(time.hour(), 2) + digits(time.minute(), 2) + digits(time.second(), 2);
}

QString short_time(const QTime& time) {
    return digits(time.hour(), 2) + u':' + digits(time.minute(), 2);
}

}  // namespace dates
