#include "session/hand_over.h"

#include "session/context.h"
#include "support/drives.h"
#include "support/refusal.h"
#include "support/run_all.h"

class HandOverTest : public QObject {
    Q_OBJECT

private slots:
    void items_are_taken_by_position() {
        const QStringList full{"21.1",    "c:\\okul\\", "IŞIK, MERKEZ", "2026",  "1",       "101010", "OYA",
                               "p:\\f\\", "10.0.0.1",   "okul",         "kurvo", "gizli,1", "ANK"};
        const std::pair<QByteArray, QStringList> files[]{
            // One a line; all in one; bare with empty lines among them.
            {"\"21.1\"\r\n\"r\"\r\n\"c:\\okul\\\"\r\n\"I\xDEIK, MERKEZ\"\r\n\"r\"\r\n\"2026\"\r\n\"r\"\r\n\"1\"\r\n"
             "\"r\"\r\n\"101010\"\r\n\"OYA\"\r\n\"r\"\r\n\"p:\\f\\\"\r\n\"10.0.0.1\"\r\n\"okul\"\r\n\"kurvo\"\r\n"
             "\"gizli,1\"\r\n\"ANK\"\r\n",
             full},
            {"21.1,\"r\",\"c:\\okul\\\",\"I\xDEIK, MERKEZ\",0,2026,\"\",1,0,101010,\"OYA\",,\"p:\\f\\\",10.0.0.1,okul,"
             "kurvo,\"gizli,1\",ANK",
             full},
            {"\r\n\r\nc:\\okul\\\r\nI\xDEIK\r\n\r\n2026\r\n\r\n0\r\n\r\n111111\r\nOYA\r\n\r\np:"
             "\\\r\n\r\n\r\n\r\n\r\n\r\n",
             {"", "c:\\okul\\", "IŞIK", "2026", "0", "111111", "OYA", "p:\\", "", "", "", "", ""}}};
        for (const auto& [bytes, expected] : files) {
            const Drives drives;
            drives.put("c/qlm/log.txt", bytes);
            SessionContext s;
            const QString rights = take_hand_over(s);
            QCOMPARE((QStringList{s.versionText, s.dataRoot, s.schoolName, s.termCode, s.hideArchived, rights,
                                  s.userCode, s.photoFolder, s.remoteHost, s.remoteDatabase, s.remoteUser,
                                  s.remotePassword, s.remoteSchoolKey}),
                     expected);
            QVERIFY2(!QFile::exists(drives.path("c/qlm/log.txt")), "a second start must not find it");
        }
    }

    void short_file_is_refused_and_left() {
        const Drives drives;
        SessionContext session;
        const QString missing = refusal([&] { take_hand_over(session); });
        QVERIFY2(missing.contains("c:\\qlm\\log.txt") && missing.contains("bulunamadı"), qPrintable(missing));
        drives.put("c/qlm/log.txt", "a,a,a,a,a,a,a,a,a,a,a,a,a,a,a,a,a\r\n");
        const QString words = refusal([&] { take_hand_over(session); });
        QVERIFY2(words.contains("c:\\qlm\\log.txt") && words.contains("18. değer"), qPrintable(words));
        QVERIFY(session.dataRoot.isEmpty());
        QVERIFY(QFile::exists(drives.path("c/qlm/log.txt")));
    }
};

static const Registered<HandOverTest> registered;
#include "hand_over_test.moc"
