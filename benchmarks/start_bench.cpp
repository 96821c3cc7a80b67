// From the launch to the window that shows the filled list.
#include "bare_form.h"
#include "benches.h"
#include "raw_store.h"
#include "register/program.h"

#include <QCoreApplication>
#include <QFontDatabase>

#include <memory>
#include <stdexcept>

namespace bench {

namespace {

// Start-up opens the term and then switches to it, so the list is read twice.
void read_list() {
    RawFile term(BigSchool::term_file);
    RawStatement rows = term.prepare("SELECT SINIF, ONO, ADSOY FROM Ogrenci INDEXED BY \"Ogrenci.ONOX\" ORDER BY ONO");
    while (rows.step()) {
        keep(rows.text(0));
        keep(rows.number(1));
        keep(rows.text(2));
    }
}

}  // namespace

void measure_start(Table& table, const BigSchool& school) {
    const auto start = [&] {
        school.hand_over();
        std::unique_ptr<Program> program;
        return timed([&] {
            program = std::make_unique<Program>();
            if (!program->start()) throw std::runtime_error("the program does not start");
            QCoreApplication::processEvents();
        });
    };
    const auto bare_start = [&] {
        std::unique_ptr<BareForm> form;
        return timed([&] {
            form = std::make_unique<BareForm>();
            read_list();
            read_list();
            keep(QFontDatabase::families());
            form->show();
            QCoreApplication::processEvents();
        });
    };
    table.compare("start to the filled window", 1.5, start, bare_start);
}

}  // namespace bench
