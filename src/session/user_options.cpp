#include "session/user_options.h"

#include "platform/rich_text.h"

namespace {

QString option_characters(const SessionContext& session) {
    store::Database suite = store::OpenDatabase(session.data_file(QStringLiteral("kbase.mdb")));
    store::Recordset users = suite.OpenRecordset("users");
    users.Index("KX");
    users.Seek("=", {session.userCode});
    if (users.NoMatch()) return QStringLiteral("0");
    return rich_text::plain(users["DKOD"].required().text());
}

}  // namespace

void read_user_options(SessionContext& session) {
    const QString options = option_characters(session);
    session.forceTodayOnPosting = options.mid(0, 1);
    session.upperCaseNames = options.mid(2, 1);
    session.mayChangeFees = options.mid(3, 1);
}
