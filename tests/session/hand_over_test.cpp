#include "session/hand_over.h"

#include "office.h"
#include "platform/paths.h"
#include "session_tests.h"

#include <QTest>

namespace {

// The values of a full hand-over in the order of the session's fields.
QStringList taken(const SessionContext& session, const QString& rights) {
    return {session.versionText,    session.dataRoot,     session.schoolName,
            session.termCode,       session.hideArchived, rights,
            session.userCode,       session.photoFolder,  session.remoteHost,
            session.remoteDatabase, session.remoteUser,   session.remotePassword,
            session.remoteSchoolKey};
}

}  // namespace

void HandOverTest::items_are_taken_by_position_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("expected");
    const QStringList full{"21.1",    "c:\\okul\\", "IŞIK, MERKEZ", "2026",  "1",       "101010", "OYA",
                           "p:\\f\\", "10.0.0.1",   "okul",         "kurvo", "gizli,1", "ANK"};
    QTest::newRow("one a line") << QByteArray(
                                       "\"21.1\"\r\n\"r\"\r\n\"c:\\okul\\\"\r\n\"I\xDEIK, MERKEZ\"\r\n\"r\"\r\n"
                                       "\"2026\"\r\n\"r\"\r\n\"1\"\r\n\"r\"\r\n\"101010\"\r\n\"OYA\"\r\n\"r\"\r\n"
                                       "\"p:\\f\\\"\r\n\"10.0.0.1\"\r\n\"okul\"\r\n\"kurvo\"\r\n\"gizli,1\"\r\n"
                                       "\"ANK\"\r\n")
                                << full;
    QTest::newRow("all in one line, numbers bare")
        << QByteArray(
               "21.1,\"r\",\"c:\\okul\\\",\"I\xDEIK, MERKEZ\",0,2026,\"\",1,0,101010,\"OYA\",,\"p:\\f\\\","
               "10.0.0.1,okul,kurvo,\"gizli,1\",ANK")
        << full;
    QTest::newRow("lines of several items, more than 18")
        << QByteArray(
               "\"21.1\",\"r\"\n\"c:\\okul\\\",\"I\xDEIK, MERKEZ\",\"r\"\n2026,r\n1 , r\n\"101010\",OYA\nr,p:\\f\\\n"
               "10.0.0.1,okul\nkurvo,\"gizli,1\",ANK\nr,r\n")
        << full;
    QTest::newRow("bare lines, empty ones among them")
        << QByteArray(
               "\r\n\r\nc:\\okul\\\r\nI\xDEIK\r\n\r\n2026\r\n\r\n0\r\n\r\n111111\r\nOYA\r\n\r\n"
               "p:\\\r\n\r\n\r\n\r\n\r\n\r\n")
        << QStringList{"", "c:\\okul\\", "IŞIK", "2026", "0", "111111", "OYA", "p:\\", "", "", "", "", ""};
}

void HandOverTest::items_are_taken_by_position() {
    QFETCH(QByteArray, file);
    QFETCH(QStringList, expected);
    const Folders office;
    Folders::write(hand_over_file, file);

    SessionContext session;
    const QString rights = take_hand_over(session);
    QCOMPARE(taken(session, rights), expected);
    QVERIFY2(!paths::exists(hand_over_file), "a second start must not find it");
}

void HandOverTest::missing_file_is_refused() {
    const Folders office;
    SessionContext session;
    const QString words = refusal([&] { take_hand_over(session); });
    QVERIFY2(words.contains("c:\\qlm\\log.txt") && words.contains("bulunamadı"), qPrintable(words));
}

void HandOverTest::short_file_is_refused_and_left() {
    const Folders office;
    Folders::write(hand_over_file, QByteArray("a,a,a,a,a,a,a,a,a,a,a,a,a,a,a,a,a\r\n"));
    SessionContext session;
    const QString words = refusal([&] { take_hand_over(session); });
    QVERIFY2(words.contains("c:\\qlm\\log.txt") && words.contains("18. değer"), qPrintable(words));
    QVERIFY(session.dataRoot.isEmpty());
    QVERIFY(paths::exists(hand_over_file));
}
