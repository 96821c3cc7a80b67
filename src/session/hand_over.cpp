#include "session/hand_over.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "platform/text_file.h"

#include <QStringList>

namespace {

constexpr int item_count = 18;

QStringList read_hand_over() {
    if (!paths::exists(hand_over_file))
        refuse(QStringLiteral("%1 bulunamadı. Program ana menüden başlatılmalıdır.").arg(hand_over_file));
    QStringList items = text_file::read_items(hand_over_file);
    if (items.size() < item_count)
        refuse(QStringLiteral("%1 eksik: %2 değer olmalı, %3 değer var. %4. değer okunamadı.")
                   .arg(hand_over_file)
                   .arg(item_count)
                   .arg(items.size())
                   .arg(items.size() + 1));
    return items;
}

}  // namespace

QString take_hand_over(SessionContext& session) {
    const QStringList items = read_hand_over();
    session.versionText = items[0];
    session.dataRoot = items[2];
    session.schoolName = items[3];
    session.termCode = items[5];
    session.hideArchived = items[7];
    session.userCode = items[10];
    session.photoFolder = items[12];
    session.remoteHost = items[13];
    session.remoteDatabase = items[14];
    session.remoteUser = items[15];
    session.remotePassword = items[16];
    session.remoteSchoolKey = items[17];
    if (!paths::remove(hand_over_file)) refuse(QStringLiteral("%1 silinemedi.").arg(hand_over_file));
    return items[9];
}
