// New students from a workbook: reading each format beside the library that Python has for it, and writing.
#include "benches.h"
#include "new_students.h"
#include "platform/workbook.h"
#include "raw_store.h"
#include "register/student_card.h"
#include "register/student_import.h"
#include "register/student_list.h"
#include "school.h"
#include "session/panel_setup.h"
#include "session/terms.h"

#include <QCoreApplication>
#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <stdexcept>

namespace bench {

namespace {

constexpr int students = 5000, columns = 10;
constexpr int readings = 3;  // the peers take seconds each

// The Debian packages belong to the system's own interpreter.
QString python() {
    const QString of_system = QStringLiteral("/usr/bin/python3");
    return QFile::exists(of_system) ? of_system : QStandardPaths::findExecutable(QStringLiteral("python3"));
}

// What the script prints; none where Python or its library is missing.
std::optional<QString> run_script(const QStringList& arguments) {
    constexpr int missing_library = 3;
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    script.start(python(), QStringList(QStringLiteral(KURVO_READ_WORKBOOK)) + arguments);
    const bool ended = script.waitForFinished(-1);
    if (script.error() == QProcess::FailedToStart || script.exitCode() == missing_library) return std::nullopt;
    if (!ended || script.exitStatus() != QProcess::NormalExit || script.exitCode() != 0)
        throw std::runtime_error("read_workbook.py has failed");
    return QString::fromUtf8(script.readAllStandardOutput());
}

void require_all(int rows) {
    if (rows != students) throw std::runtime_error("the workbook has other rows");
}

// The script's own timing: the start of the interpreter does not count.
Seconds read_by_python(const QString& file) {
    const QStringList printed = run_script({QStringLiteral("read"), file}).value_or(QString()).split(u' ');
    require_all(printed.value(1).toInt());
    return printed.first().toDouble();
}

void read_workbook(const QString& file) {
    const Workbook book = Workbook::open(file);
    require_all(book.rows());
    for (int row = 1; row <= students; ++row)
        for (int column = 1; column <= columns; ++column) keep(book.text(row, column));
}

void measure_reading(Table& table, const QString& ending, const std::string& library, const std::string& packages) {
    const std::string act = "import, reading 5,000 rows of ." + ending.toStdString() + ", " + library;
    if (!table.wants(act)) return;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("liste.") + ending);
    if (!run_script({QStringLiteral("make"), file, QString::number(students)}))
        return table.leave_out(act, packages + " not installed");
    table.compare(
        act, 0.2, [&] { return timed([&] { read_workbook(file); }); }, [&] { return read_by_python(file); }, readings);
}

// The panel, over a term without students.
class ImportPanel {
public:
    explicit ImportPanel(const QString& file);
    void import() { kurvo_.CommandAKTAR->click(); }
    void refill_list() { list_.listeyi_yenile(); }
    // What the last import said it has written.
    int written() const;

private:
    SessionContext session_;
    Kurvo kurvo_;
    Terms terms_{kurvo_, session_};
    StudentCard card_{kurvo_, session_, {}};
    StudentList list_{kurvo_, session_, card_};
    StudentImport import_{kurvo_, session_, list_};
};

ImportPanel::ImportPanel(const QString& file) {
    session_.dataRoot = BigSchool::root;
    session_.termCode = new_students::term;
    set_up_list(kurvo_);
    terms_.open();
    kurvo_.show();
    kurvo_.CommandDOSYADAN->click();
    kurvo_.ONAME->setText(file);
    for (std::size_t box = 0; box < kurvo_.bas.size(); ++box) kurvo_.bas[box]->setText(QString::number(box + 1));
    QCoreApplication::processEvents();
}

int ImportPanel::written() const {
    const QString line = kurvo_.ListA->item(kurvo_.ListA->count() - 1)->text();
    return line.mid(line.lastIndexOf(u' ') + 1).toInt();
}

void measure_writing(Table& table) {
    const std::string act = "import, writing 5,000 students";
    if (!table.wants(act)) return;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("liste.csv"));
    const std::vector<QStringList> rows = new_students::rows(students);
    new_students::write_csv(rows, file);
    school::add_terms(BigSchool::root, {new_students::term});
    ImportPanel panel(file);
    new_students::BareWriter bare;

    const auto write = [&] {
        bare.empty();
        const Seconds taken = timed([&] { panel.import(); });
        QCoreApplication::processEvents();
        require_all(panel.written());
        return taken;
    };
    // Reading and the list have rows of their own: both sides do them alike.
    const auto write_bare = [&] {
        bare.empty();
        return timed([&] {
            keep(Workbook::open(file).rows());
            bare.write(rows);
            panel.refill_list();
        });
    };
    table.compare(act, 2, write, write_bare);
}

}  // namespace

void measure_import(Table& table, const BigSchool&) {
    measure_reading(table, QStringLiteral("xls"), "xlrd", "python3-xlrd or python3-xlwt is");
    measure_reading(table, QStringLiteral("xlsx"), "openpyxl", "python3-openpyxl is");
    measure_reading(table, QStringLiteral("ods"), "odfpy", "python3-odf is");
    measure_writing(table);
}

}  // namespace bench
