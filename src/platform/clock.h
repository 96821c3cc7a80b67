// The clock, asked in one place so that a test can set it.
#pragma once

#include "platform/override.h"

#include <QDate>
#include <QDateTime>
#include <QString>

namespace clock_source {

QDateTime now();
QDate today();

// A clock in place of the machine's.
using Override = ::Override<struct Clock, QDateTime()>;

}  // namespace clock_source

// Dates and times in the forms of the tables and of the screen.
namespace dates {

QString key(const QDate& date);           // YYYYMMDD
QDate from_key(const QString& key);       // an invalid date where the text is none
QString shown(const QString& key);        // DD.MM.YYYY, cut by position as the text stands
QString shown(const QDate& date);         // DD.MM.YYYY
QString key_of_shown(const QString& dd);  // DD.MM.YYYY -> YYYYMMDD, cut by position
QString time_key(const QTime& time);      // HHMMSS
QString short_time(const QTime& time);    // HH:mm

}  // namespace dates
