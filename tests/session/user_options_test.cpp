#include "session/user_options.h"

#include "office.h"
#include "session_tests.h"

#include <QTest>

namespace {

void store_options(const QString& user, const QString& value) {
    Office::add(Office::data(QStringLiteral("kbase.mdb")), "users", {{"KOD", user}, {"DKOD", value}});
}

QStringList options(const SessionContext& session) {
    return {session.forceTodayOnPosting, session.upperCaseNames, session.mayChangeFees};
}

}  // namespace

void UserOptionsTest::options_by_position_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("plain") << "0110" << QStringList{"0", "1", "0"};
    QTest::newRow("short") << "10" << QStringList{"1", "", ""};
    QTest::newRow("empty") << "" << QStringList{"", "", ""};
    QTest::newRow("rich text box")
        << QStringLiteral(R"({\rtf1\ansi\ansicpg1254\deff0{\fonttbl{\f0\fnil\fcharset162 MS Sans Serif;}})"
                          "\r\n"
                          R"(\viewkind4\uc1\pard\lang1055\f0\fs17 1011)"
                          "\r\n"
                          R"(\par })")
        << QStringList{"1", "1", "1"};
    QTest::newRow("word processor")
        << QStringLiteral(
               R"({\rtf1\ansi\deff3\adeflang1025{\fonttbl{\f0\froman\fprq2\fcharset0 Times New Roman;}}{\colortbl;\red0\green0\blue0;})"
               R"({\stylesheet{\s0\snext0\nowidctlpar Normal;}}{\*\generator LibreOffice/7.4}{\info{\author 9999}{\creatim\yr2026\mo9\dy1}})"
               R"(\pgndec\pard\plain \s0{\rtlch\ltrch\loch 1}{\b\cf1 00}{\*\bkmkstart a9}1\par })")
        << QStringList{"1", "0", "1"};
}

void UserOptionsTest::options_by_position() {
    QFETCH(QString, stored);
    const Office office;
    store_options(QStringLiteral("CAN"), stored);
    SessionContext session = office.session();
    session.userCode = QStringLiteral("CAN");
    read_user_options(session);
    QTEST(options(session), "expected");
}

void UserOptionsTest::user_without_record() {
    const Office office;
    SessionContext session = office.session();
    session.userCode = QStringLiteral("YOK");
    read_user_options(session);
    QCOMPARE(options(session), (QStringList{"0", "", ""}));
}
