#include "register/record_window.h"

#include "fees/bus_service.h"
#include "fees/contract.h"
#include "fees/instalment_plan.h"
#include "fees/promissory_notes.h"
#include "platform/numbers.h"
#include "platform/slots.h"
#include "platform/wait_cursor.h"
#include "register/deletion.h"
#include "register/renumbering.h"
#include "register/transfer.h"
#include "session/terms.h"

#include <QWindow>

#include <utility>

// One form with its handlers, from its opening to its closing.
struct RecordWindow::Opening : QObject {
    explicit Opening(RecordWindow& window)
        : QObject(&window),
          plan(form, window.session_, {[this] { return record.kayitVar; }, [this] { saving.store_student(); }}),
          bus(form, window.session_),
          record(form, window.session_, [this] { plan.taksit_listele(); }),
          saving(form, window.session_, record, window.screen_, window.publishing_.publish),
          renumbering(form, window.session_, window.screen_),
          deletion(form, window.session_, record, window.screen_, window.publishing_.remove),
          transfer(form, window.session_, record),
          notes(form, window.session_),
          contract(form, window.session_) {}

    KurvoYeni form;
    InstalmentPlan plan;
    BusService bus;
    RecordForm record;
    RecordSaving saving;
    Renumbering renumbering;
    Deletion deletion;
    Transfer transfer;
    PromissoryNotes notes;
    Contract contract;
};

RecordWindow::RecordWindow(SessionContext& session, Terms& terms, MainScreen screen, Publishing publishing)
    : session_(session), terms_(terms), screen_(screen), publishing_(std::move(publishing)) {
    on(screen_.kurvo.CommandYENI, &QPushButton::clicked, this, [this] { CommandYENI_Click(); });
}

RecordWindow::~RecordWindow() = default;

KurvoYeni* RecordWindow::form() const {
    return opening_.isNull() ? nullptr : &opening_->form;
}

void RecordWindow::CommandYENI_Click() {
    if (!opening_.isNull()) return;
    const WaitCursor wait;
    screen_.kurvo.setEnabled(false);
    opening_ = new Opening(*this);
    on(&opening_->form, &KurvoYeni::closed, this, [this] { form_closed(); });
    // The record form stands in the main form's place and above it, since that one cannot be used meanwhile.
    opening_->form.setGeometry(screen_.kurvo.window()->geometry());
    opening_->form.winId();
    opening_->form.windowHandle()->setTransientParent(screen_.kurvo.window()->windowHandle());
    opening_->record.open(numbers::val(screen_.kurvo.LONO->text()));
    opening_->form.activateWindow();
}

// When the program ends with the main form, the form is closed behind a term that is closed already.
void RecordWindow::form_closed() {
    opening_->deleteLater();
    opening_.clear();
    if (!session_.termDbOpen) return;
    bring_card_up_to_date();
    screen_.kurvo.setEnabled(true);
    screen_.kurvo.activateWindow();
    screen_.kurvo.CommandYENI->setFocus();
}

// A student who was deleted meanwhile leaves an empty card, so that no panel works for nobody.
void RecordWindow::bring_card_up_to_date() {
    session_.studentSelected = session_.shownStudent != 0;
    if (!session_.studentSelected) return;
    session_.studentTable.Seek("=", {session_.shownStudent});
    if (!session_.studentTable.NoMatch()) return;
    terms_.leave_student();
    screen_.card.mark_number_box();
}
