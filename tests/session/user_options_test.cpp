#include "session/user_options.h"

#include "known_session.h"
#include "support/run_all.h"

class UserOptionsTest : public QObject {
    Q_OBJECT

private slots:
    void options_by_position() {
        School school;
        SessionContext session = known_session(school);
        const auto options = [&] {
            read_user_options(session);
            return QStringList{session.forceTodayOnPosting, session.upperCaseNames, session.mayChangeFees};
        };
        const std::pair<QString, QStringList> stored[]{
            {"1011", {"1", "1", "1"}}, {"0110", {"0", "1", "0"}}, {"10", {"1", "", ""}}, {"", {"", "", ""}}};
        for (const auto& [text, expected] : stored) {
            school.user("AYLIN", text);
            QCOMPARE(options(), expected);
        }
        session.userCode = "CAN";
        QCOMPARE(options(), (QStringList{"0", "", ""}));  // no record of this user
    }
};

static const Registered<UserOptionsTest> registered;
#include "user_options_test.moc"
