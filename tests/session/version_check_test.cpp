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
        const QStringList all[]{// handed over, in the data; then matching, in the title, in the data after it
                                {"21.0", "21.1", "1", "21.0", "21.1"},  {"20.7", "21.3", "1", "21.1", "21.1"},
                                {"21.1", "21.1 ", "1", "21.1", "21.1"}, {"21.1", "20.9", "0", "21.1", "20.9"},
                                {"21.1", "22.1", "0", "21.1", "22.1"},  {"21.1", "2", "0", "21.1", "2"},
                                {"", "20.9", "1", "21.1", "21.1"},      {"  ", "21.1", "1", "21.1", "21.1"}};
        School school;
        for (const QStringList& versions : all) {
            school.data_version(versions[1]);
            SessionContext session = known_session(school);
            session.versionText = versions[0];
            const QString match = version_matches(session) ? "1" : "0";
            QCOMPARE((QStringList{match, session.versionText, version_row(school)}), versions.mid(2));
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
