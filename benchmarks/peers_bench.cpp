// What a user would choose instead: Qt's own model of a table for the list, LibreOffice for a page of PDF.
#include "benches.h"
#include "overview/dossier.h"
#include "platform/grid_view.h"
#include "platform/paths.h"
#include "platform/print_surface.h"
#include "register/student_list.h"
#include "running_program.h"

#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>

#include <stdexcept>

namespace bench {

namespace {

const QString connection = QStringLiteral("peer");

// A connection by its name, which must be gone before it is removed.
class TermOfQt {
public:
    TermOfQt() {
        QSqlDatabase term = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        term.setDatabaseName(paths::native(BigSchool::term_file));
        if (!term.open()) throw std::runtime_error("Qt does not open the term");
    }
    ~TermOfQt() { QSqlDatabase::removeDatabase(connection); }
    TermOfQt(const TermOfQt&) = delete;
    TermOfQt& operator=(const TermOfQt&) = delete;
};

// All rows fetched, as our list holds all.
void fill(QSqlTableModel& model) {
    model.select();
    while (model.canFetchMore()) model.fetchMore();
    if (model.rowCount() != BigSchool::usual_students) throw std::runtime_error("Qt does not read all students");
}

void measure_list_beside_model(Table& table, const BigSchool& school) {
    const std::string act = "ogrenci_listele beside QSqlTableModel";
    if (!table.wants(act)) return;
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return table.leave_out(act, "libqt6sql6-sqlite is not installed");
    RunningProgram program(school);
    StudentCard card(program->form(), program->session(), {});
    StudentList list(program->form(), program->session(), card);
    const TermOfQt term;
    QSqlTableModel model(nullptr, QSqlDatabase::database(connection));
    model.setTable(QStringLiteral("Ogrenci"));
    model.setSort(model.fieldIndex(QStringLiteral("ONO")), Qt::AscendingOrder);
    QTableView view;
    view.setModel(&model);
    table.compare(
        act, 1, [&] { return timed([&] { list.ogrenci_listele(); }); }, [&] { return timed([&] { fill(model); }); });
}

constexpr int lines = 40;  // what the head of the first page leaves room for, and a few less
const QStringList session{QStringLiteral("X"),         QStringLiteral("05.10.2026"), QStringLiteral("09:30"),
                          QStringLiteral("Matematik"), QStringLiteral("ALİ CAN"),    QStringLiteral("Türev")};

void convert(const QString& office, const QString& text, const QString& folder) {
    QProcess process;
    process.start(office, {QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("pdf"),
                           QStringLiteral("--outdir"), folder, text});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) throw std::runtime_error("LibreOffice has failed");
}

// The dossier of a student with a page of study sessions.
void measure_page(Table& table) {
    const std::string act = "a page of PDF beside LibreOffice";
    if (!table.wants(act)) return;
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty()) return table.leave_out(act, "soffice is not installed");
    const QTemporaryDir folder;
    qputenv("KURVO_PRINTER", "pdf:" + folder.path().toUtf8());
    Kurvo kurvo;
    SessionContext context;
    const Dossier dossier(kurvo, context);
    GridView& grid = *kurvo.FToplu_ETUDLER;
    grid.set_fixed(1, 0);
    grid.set_columns(static_cast<int>(session.size()));
    grid.set_rows(lines + 1);
    for (int row = 1; row <= lines; ++row) grid.set_row(row, session);
    for (QCheckBox* box : kurvo.ChkY) box->setChecked(box == kurvo.ChkY[3]);
    std::size_t pages = 0;
    PrintSurface::set_observer([&](const PrintSurface::Document& paper) { pages = paper.pages.size(); });
    QFile text(folder.filePath(QStringLiteral("page.txt")));
    if (!text.open(QIODevice::WriteOnly)) throw std::runtime_error("the page cannot be written");
    for (int line = 0; line < lines; ++line) text.write(session.join(u'\t').toUtf8() + '\n');
    text.close();
    constexpr int runs = 3;  // an office takes seconds
    table.compare(
        act, 1, [&] { return timed([&] { kurvo.CommandYAZFT->click(); }); },
        [&] { return timed([&] { convert(office, text.fileName(), folder.path()); }); }, runs);
    PrintSurface::set_observer({});
    qunsetenv("KURVO_PRINTER");
    if (pages != 1) throw std::runtime_error("the dossier has another number of pages");
}

}  // namespace

void measure_peers(Table& table, const BigSchool& school) {
    measure_list_beside_model(table, school);
    measure_page(table);
}

}  // namespace bench
