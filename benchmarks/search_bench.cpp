// The search by a part of the name. The term is closed meanwhile: the search works on what the list shows.
#include "benches.h"
#include "platform/grid_view.h"
#include "raw_store.h"
#include "running_program.h"

#include <vector>

namespace bench {

namespace {

constexpr int name_column = 2;
constexpr int searches = 10;
const QString wanted = QStringLiteral("YILMAZ");

std::vector<QString> names_of(const GridView& list) {
    std::vector<QString> names;
    for (int row = 0; row < list.rows(); ++row) names.push_back(list.text(row, name_column));
    return names;
}

}  // namespace

void measure_search(Table& table, const BigSchool& school) {
    const std::string act = "name search over 20,000 rows";
    if (!table.wants(act)) return;
    RunningProgram program(school);
    Kurvo& form = program->form();
    SessionContext& session = program->session();
    session.studentTable.Close();
    session.termDb.Close();
    session.termDbOpen = false;
    form.CommandSBUL->click();
    form.FSBUL_soyad->setText(wanted);
    const std::vector<QString> names = names_of(*form.TABLO);

    const auto search = [&] {
        for (int i = 0; i < searches; ++i) form.CommandSARA->click();
    };
    const auto loop = [&] {
        for (int i = 0; i < searches; ++i) {
            int found = 0;
            for (const QString& name : names) found += name.contains(wanted) ? 1 : 0;
            keep(found);
        }
    };
    table.compare(
        act, 5, [&] { return timed(search, searches); }, [&] { return timed(loop, searches); });
    if (form.TABLO_SBUL->rows() == 0) throw std::runtime_error("the search has found nobody");
}

}  // namespace bench
