#include "register/program.h"

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
      posting_(kurvo_, session_, statement_, collections_),
      start_up_(kurvo_, session_, terms_, institution_flag_) {
    on(&terms_, &Terms::opened, this, [this] { list_.term_opened(); });
    on(&start_up_, &StartUp::flags_read, this, [this] { list_.apply_list_state(); });
    on(&kurvo_, &Kurvo::closing, this, [this] { end(); });
}

Program::~Program() = default;

bool Program::start() {
    return start_up_.run();
}

CardFollowers Program::followers() {
    CardFollowers followers;
    followers.odeme_durumu = [this] { statement_.odeme_durumu(); };
    return followers;
}

// A window that is still open beside the main form ends with it.
void Program::end() {
    start_up_.shut_down();
    QCoreApplication::quit();
}
