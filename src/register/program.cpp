#include "register/program.h"

#include "collections/invoice.h"
#include "platform/paths.h"
#include "platform/slots.h"

#include <QCoreApplication>

Program::Program()
    : terms_(kurvo_, session_),
      institution_flag_(kurvo_, session_),
      statement_(kurvo_, session_),
      card_(kurvo_, session_, followers()),
      list_(kurvo_, session_, card_),
      search_(kurvo_, session_, list_),
      record_window_(session_, terms_, {kurvo_, list_, card_}, {[](std::int64_t) {}, [](std::int64_t) {}}),
      collections_(kurvo_, session_, terms_),
      posting_(kurvo_, session_, statement_, collections_, {[this] { fatura_yaz(kurvo_, session_); }, {}}),
      start_up_(kurvo_, session_, terms_, institution_flag_) {
    on(&terms_, &Terms::opened, this, [this] { list_.term_opened(); });
    on(&start_up_, &StartUp::flags_read, this, [this] { list_.apply_list_state(); });
    on(&kurvo_, &Kurvo::closing, this, [this] { end(); });
    PrintSurface::set_observer([this](const PrintSurface::Document& paper) { tell_file(paper); });
}

Program::~Program() {
    PrintSurface::set_observer({});
}

bool Program::start() {
    return start_up_.run();
}

CardFollowers Program::followers() {
    CardFollowers followers;
    followers.odeme_durumu = [this] { statement_.odeme_durumu(); };
    return followers;
}

// A paper that no printer gives out lies somewhere, and the clerk has to find it.
void Program::tell_file(const PrintSurface::Document& paper) {
    const QString place =
        paper.file.isEmpty()
            ? QString()
            : QStringLiteral("%1 PDF dosyası olarak kaydedildi: %2").arg(paper.paper, paths::office_name(paper.file));
    kurvo_.status(place);
    if (KurvoYeni* form = record_form()) form->status(place);
}

// A window that is still open beside the main form ends with it.
void Program::end() {
    start_up_.shut_down();
    QCoreApplication::quit();
}
