#include "register/deletion.h"

#include "platform/paths.h"
#include "platform/prompt.h"
#include "platform/refusal.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "register/record_form.h"
#include "register/student_tables.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Collections go before the study sessions; a renumbering takes them last.
constexpr StudentTable tables_in_order[] = {student_tables::Odeme,    student_tables::Devam, student_tables::Dmazeret,
                                            student_tables::Tahsilat, student_tables::Etud,  student_tables::EtudDevam,
                                            student_tables::Emazeret};

}  // namespace

Deletion::Deletion(KurvoYeni& form, SessionContext& session, RecordForm& record, MainScreen main,
                   std::function<void(const KurvoYeni&)> remove_remote)
    : form_(form), session_(session), record_(record), main_(main), remove_remote_(std::move(remove_remote)) {
    on(form_.CommandSIL, &QPushButton::clicked, this, [this] { CommandSIL_Click(); });
}

void Deletion::CommandSIL_Click() {
    if (!record_.kayitVar) return form_.ONO->setFocus();
    if (!prompt::ask(u"Kayıt Silinecek.  Emin misiniz?"_s, u"Dikkat"_s)) return;
    const WaitCursor wait;
    const std::int64_t student = store::Value(form_.ONO->text()).whole_number();
    remove_photo();
    for (const StudentTable& table : tables_in_order) remove_rows(table, student);
    remove_student();
    if (!session_.remoteSchoolKey.isEmpty()) remove_remote_(form_);
    main_.list.listeyi_yenile();
    record_.CommandTEMIZLE_Click();
}

// The name as it stands on the form: a bare one is not looked for in the photo folder.
void Deletion::remove_photo() {
    const QString name = form_.RESIM->text().trimmed();
    if (name.isEmpty() || !paths::exists(name)) return;
    if (!paths::remove(name)) refuse(u"Fotoğraf silinemedi: "_s + name);
}

void Deletion::remove_rows(const StudentTable& table, std::int64_t student) {
    store::WriteScope scope(session_.termDb);
    store::Recordset rows = table.open(session_.termDb);
    store::scan_prefix(rows, {student}, [&] {
        rows.Delete();
        scope.pause_if_due();
    });
    scope.commit();
}

// Wherever the cursor was led meanwhile: the row of the number on the form, unless another workstation took it away.
void Deletion::remove_student() {
    if (record_.seek_student()) session_.studentTable.Delete();
}
