#include "fees/contract.h"

#include "fees/contract_paper.h"
#include "fees/note_wording.h"
#include "platform/attempt.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/slots.h"
#include "platform/text_file.h"
#include "platform/wait_cursor.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

Contract::Contract(KurvoYeni& form, SessionContext& session)
    : form_(form), session_(session), opened_(clock_source::today()) {
    on(form_.CommandYAZ, &QPushButton::clicked, this, [this] { CommandYAZ_Click(); });
    on(form_.CommandSOZLESME, &QPushButton::clicked, this, [this] { CommandSOZLESME_Click(); });
    on(form_.CommandSave, &QPushButton::clicked, this, [this] { CommandSave_Click(); });
    on(form_.CommandGeridon, &QPushButton::clicked, this, [this] { CommandGeridon_Click(); });
}

void Contract::CommandYAZ_Click() {
    if (numbers::val(form_.ONO->text()) <= 0) return;
    attempt(u"Sözleşme basılamadı."_s, [this] {
        const WaitCursor wait;
        print_contract();
    });
}

// The files come first: a paper begins only when all that it says is at hand.
void Contract::print_contract() {
    note_wording::fill_panel(form_, session_);
    const bool has_clauses = paths::exists(clauses_file());
    const QStringList clauses = has_clauses ? text_file::read_lines(clauses_file()) : QStringList();

    PrintSurface surface(u"Sözleşme"_s, form_.ONO->text());
    surface.line_width(session_.line_width());
    ContractPaper paper(surface, form_, dates::shown(opened_));
    paper.heading(session_.schoolName);
    if (has_clauses) paper.clauses(clauses);
    paper.student();
    paper.instalments();
    paper.closing_note();
    surface.end_document();
}

void Contract::CommandSOZLESME_Click() {
    attempt(u"Sözleşme metni açılamadı."_s, [this] {
        form_.Text_Soz->setPlainText(text_file::read_lines(clauses_file()).join(u'\n'));
        form_.FrameSozlesme->show();
        form_.Text_Soz->setFocus();
    });
}

void Contract::CommandSave_Click() {
    // Blanks alone: an empty first line keeps the clauses clear of their frame.
    static const QRegularExpression outer_blanks(u"\\A +| +\\z"_s);
    const QString text = form_.Text_Soz->toPlainText().remove(outer_blanks);
    const bool saved = attempt(u"Sözleşme kaydedilemedi."_s,
                               [&] { text_file::write_lines(clauses_file(), text.split(u'\n')); });
    if (saved) prompt::tell(u"Sözleşme Kaydedildi."_s);
}

void Contract::CommandGeridon_Click() {
    form_.FrameSozlesme->hide();
}
