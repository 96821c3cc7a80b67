#include "session/version_check.h"

#include "office.h"
#include "platform/rich_text.h"
#include "session_tests.h"

#include <QTest>

void VersionCheckTest::data_and_program_data() {
    QTest::addColumn<QString>("handed_over");
    QTest::addColumn<QString>("in_data");
    QTest::addColumn<bool>("matches");
    QTest::addColumn<QString>("in_title");
    QTest::addColumn<QString>("in_data_after");
    QTest::newRow("same") << "21.0"
                          << "21.1" << true << "21.0"
                          << "21.1";
    QTest::newRow("later minor") << "20.7"
                                 << "21.3" << true << "21.1"
                                 << "21.1";
    QTest::newRow("longer text") << "21.1"
                                 << "21.1 " << true << "21.1"
                                 << "21.1";
    QTest::newRow("older data") << "21.1"
                                << "20.9" << false << "21.1"
                                << "20.9";
    QTest::newRow("newer data") << "21.1"
                                << "22.1" << false << "21.1"
                                << "22.1";
    QTest::newRow("short") << "21.1"
                           << "2" << false << "21.1"
                           << "2";
    QTest::newRow("empty row") << "21.1"
                               << "" << false << "21.1"
                               << "";
    QTest::newRow("none handed over") << ""
                                      << "20.9" << true << "21.1"
                                      << "21.1";
    QTest::newRow("blanks handed over") << "  "
                                        << "21.1" << true << "21.1"
                                        << "21.1";
}

void VersionCheckTest::data_and_program() {
    QFETCH(QString, handed_over);
    QFETCH(QString, in_data);
    QFETCH(bool, matches);
    const Office office;
    Office::set_version_row(rich_text::from_plain(in_data));
    SessionContext session = office.session();
    session.versionText = handed_over;

    QCOMPARE(version_matches(session), matches);
    QTEST(session.versionText, "in_title");
    QTEST(Office::version_row(), "in_data_after");
}

void VersionCheckTest::missing_row_is_refused() {
    const Office office;
    Office::set_version_row(QString());
    SessionContext session = office.session();
    session.versionText.clear();
    QVERIFY2(version_matches(session), "without a version to compare the row is not needed");
    QCOMPARE(Office::version_row(), QString());
    QVERIFY(session.versionText.isEmpty());

    session.versionText = QStringLiteral("21.1");
    const QString words = refusal([&] { version_matches(session); });
    QVERIFY2(words.contains("Dsys.mdb") && words.contains("RMA"), qPrintable(words));
}

void VersionCheckTest::stamped_file_is_left_free() {
    const Office office;
    Office::set_version_row(QStringLiteral("21.0"));  // plain text counts as well
    SessionContext session = office.session();
    QVERIFY(version_matches(session));
    store::Database again = store::OpenDatabase(Office::data(QStringLiteral("Dsys.mdb")));
    store::Recordset versions = again.OpenRecordset("SBtab");
    QVERIFY2(versions["SB1"].text().startsWith("{\\rtf"), "the other programs of the suite expect rich text");
    versions.Edit();
    versions.CancelUpdate();
}
