// Filling the list of students, and the memory that it holds.
#include "benches.h"
#include "platform/grid_view.h"
#include "raw_store.h"
#include "register/student_list.h"
#include "running_program.h"

#include <QCoreApplication>

#include <malloc.h>

namespace bench {

namespace {

std::size_t bytes_in_use() {
    const auto memory = mallinfo2();
    return memory.uordblks + memory.hblkhd;
}

// What the filled rows hold beside an empty list.
double bytes_per_row(GridView& grid, StudentList& list) {
    grid.set_rows(0);
    QCoreApplication::processEvents();
    const std::size_t before = bytes_in_use();
    list.ogrenci_listele();
    QCoreApplication::processEvents();
    return static_cast<double>(bytes_in_use() - before) / grid.rows();
}

}  // namespace

void measure_list(Table& table, const BigSchool& school) {
    const std::string filling = "ogrenci_listele, 20,000 rows", memory = "memory of a row of the list";
    if (!table.wants(filling) && !table.wants(memory)) return;
    RunningProgram program(school);
    StudentCard card(program->form(), program->session(), {});
    StudentList list(program->form(), program->session(), card);
    RawFile raw(BigSchool::term_file);
    RawStatement rows = raw.prepare("SELECT SINIF, ONO, ADSOY FROM Ogrenci INDEXED BY \"Ogrenci.ONOX\" ORDER BY ONO");

    const auto read_raw = [&] {
        while (rows.step()) {
            keep(rows.text(0));
            keep(rows.number(1));
            keep(rows.text(2));
        }
        rows.reset();
    };
    table.compare(
        filling, 2, [&] { return timed([&] { list.ogrenci_listele(); }); }, [&] { return timed(read_raw); });
    table.limit(memory, bytes_per_row(*program->form().TABLO, list), 300, "bytes");
}

}  // namespace bench
