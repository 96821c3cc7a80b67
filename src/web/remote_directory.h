// The school's rows in the directory that the suite's web service reads, one a student.
#pragma once

#include "session/context.h"
#include "web/mariadb_client.h"

#include <functional>

class KurvoYeni;

// The address comes from the session, which must have a remoteSchoolKey. Each call opens a connection of its own and
// holds the program up meanwhile. A failure throws std::runtime_error whose Turkish text says that the student's own
// record is as the clerk left it and what is missing at the directory.
class RemoteDirectory {
public:
    explicit RemoteDirectory(const SessionContext& session, mariadb::Limits limits = {})
        : session_(session), limits_(limits) {}

    // Adds or brings up to date the row of the student on the record form, after the save.
    void uzak_ogrenci_yaz(const KurvoYeni& form) const;
    // Removes one row of the number in ONO, after the deletion; none where the student was never published.
    void uzak_ogrenci_sil(const KurvoYeni& form) const;

private:
    // Connected, set to the directory's letters, and with a transaction begun.
    mariadb::Connection uzak_baglan() const;
    void exchange(const std::function<void(mariadb::Connection&)>& statements, const QString& trouble) const;

    const SessionContext& session_;
    mariadb::Limits limits_;
};
