#include "session/version_check.h"

#include "platform/refusal.h"
#include "platform/rich_text.h"

namespace {

constexpr int level_length = 2;  // characters of a version that tell which data it can read

void stamp(store::Recordset& versions, SessionContext& session) {
    versions.Edit();
    versions["SB1"] = rich_text::from_plain(program_version);
    versions.Update();
    session.versionText = program_version;
}

}  // namespace

bool version_matches(SessionContext& session) {
    const QString file = session.data_file(QStringLiteral("Dsys.mdb"));
    store::Database system = store::OpenDatabase(file);
    store::Recordset versions = system.OpenRecordset("SBtab");
    versions.Index("X1");
    versions.Seek("=", {"RMA"});

    if (session.versionText.trimmed().isEmpty()) {
        if (!versions.NoMatch()) stamp(versions, session);
        return true;
    }
    if (versions.NoMatch())
        refuse(
            QStringLiteral("%1 dosyasının SBtab tablosunda \"RMA\" kaydı yok; veri sürümü anlaşılamıyor.").arg(file));

    const QString data_version = rich_text::plain(versions["SB1"].required().text());
    if (data_version.left(level_length) != program_version.left(level_length)) return false;
    if (data_version != program_version) stamp(versions, session);
    return true;
}

QString version_mismatch_text() {
    return QStringLiteral("Sürüm uyuşmazlığı! Önce  Up%1  programını çalıştırınız.").arg(program_version);
}
