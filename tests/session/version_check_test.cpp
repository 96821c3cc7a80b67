#include "session/version_check.h"

#include "known_session.h"
#include "platform/rich_text.h"
#include "support/refusal.h"
#include "support/run_all.h"

class VersionCheckTest : public QObject {
    Q_OBJECT

    static QString version_row(const School& school) {
        return rich_text::plain(school.row("SBtab", {"RMA"}).value("SB1", "no row"));
    }

private slots:
    void data_and_program() {
        struct Versions {
            QString handed_over, in_data;
            bool match;
            QString in_title, in_data_after;
        };
        const Versions all[]{{"21.0", "21.1", true, "21.0", "21.1"},  {"20.7", "21.3", true, "21.1", "21.1"},
                             {"21.1", "21.1 ", true, "21.1", "21.1"}, {"21.1", "20.9", false, "21.1", "20.9"},
                             {"21.1", "22.1", false, "21.1", "22.1"}, {"21.1", "2", false, "21.1", "2"},
                             {"", "20.9", true, "21.1", "21.1"},      {"  ", "21.1", true, "21.1", "21.1"}};
        School school;
        for (const Versions& versions : all) {
            school.data_version(versions.in_data);
            SessionContext session = known_session(school);
            session.versionText = versions.handed_over;
            QCOMPARE(version_matches(session), versions.match);
            QCOMPARE(session.versionText, versions.in_title);
            QCOMPARE(version_row(school), versions.in_data_after);
        }
    }

    void missing_row_is_refused() {
        School school;
        school.data_version("");
        SessionContext session = known_session(school);
        session.versionText.clear();
        QVERIFY2(version_matches(session), "without a version to compare the row is not needed");
        QCOMPARE(version_row(school), QString("no row"));
        QVERIFY(session.versionText.isEmpty());

        session.versionText = "21.1";
        const QString words = refusal([&] { version_matches(session); });
        QVERIFY2(words.contains("Dsys.mdb") && words.contains("RMA"), qPrintable(words));

        school.add("SBtab", {{"KOD", "RMA"}, {"SB1", "21.0"}});  // plain text counts as well
        QVERIFY(version_matches(session));
        const QString stamped = school.row("SBtab", {"RMA"}).value("SB1");
        QVERIFY2(stamped.startsWith("{\\rtf"), "the other programs of the suite expect rich text");
    }
};

static const Registered<VersionCheckTest> registered;
#include "version_check_test.moc"
