#include "desk.h"

#include <QTest>

namespace {

const QString term_file = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");

void add_students(store::Database& term, const std::vector<Row>& students) {
    store::Recordset rows = term.OpenRecordset("Ogrenci");
    for (const Row& student : students) {
        rows.AddNew();
        for (const store::FieldDef& field : rows.definition().fields) {
            const bool is_text = field.type == store::FieldType::text || field.type == store::FieldType::memo;
            rows[field.name] = is_text ? store::Value(" ") : store::Value(0);
        }
        for (const auto& [name, value] : student) rows[name] = value;
        rows.Update();
    }
}

}  // namespace

Desk::Office::Office(const std::vector<Row>& students) {
    for (const char* folder : {"c/okul/data", "c/okul/foto", "c/qlm"}) QDir().mkpath(drives.path(folder));
    store::create_file(term_file, store::catalogue(store::FileKind::term));
    store::Database term = store::OpenDatabase(term_file);
    add_students(term, students);
    store::Recordset classes = term.OpenRecordset("Sinif");
    classes.AddNew();
    classes["SINIF"] = "12A";
    classes["ACK"] = "Sayısal grubu";
    classes.Update();
}

Desk::Desk(const std::vector<Row>& students, const QString& hide_archived)
    : office_(students),
      card(
          kurvo, session,
          {[this] { followed << "devam_toplu"; }, [this] { followed << "etud_toplu"; }, [this] { followed << "odeme"; },
           [this] { followed << "devam"; }, [this] { followed << "etud"; }, [this] { return to_mark; }}),
      list(kurvo, session, card),
      search(kurvo, session, list) {
    kurvo.TABLO->set_widths({500, 700, 2500});
    kurvo.TABLO_SBUL->set_widths({600, 1000, 3500, 1});
    session.hideArchived = hide_archived;
    session.photoFolder = QStringLiteral("c:\\okul\\foto\\");
    session.uiFlags = QStringLiteral("11");
    session.termDb = store::OpenDatabase(term_file);
    session.studentTable = session.termDb.OpenRecordset("Ogrenci");
    session.studentTable.Index("ONOX");
    list.term_opened();
    kurvo.show();
    if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
}

void Desk::type(QWidget* box, const QString& text) {
    for (const QChar letter : text)
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(type, Qt::Key_unknown, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(box, &key);
        }
}

void Desk::type_number(const QString& number, Qt::Key then) {
    kurvo.LONO->setFocus();
    kurvo.LONO->selectAll();
    type(kurvo.LONO, number);
    QTest::keyClick(kurvo.LONO, then);
}

void Desk::click_cell(const GridView& grid, int row, int column) {
    const QPoint place = grid.viewport()->mapFrom(grid.parentWidget(), grid.cell_rect(row, column).center());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place);
}

void Desk::click_heading(int column) {
    QTest::mouseClick(kurvo.bslk[static_cast<std::size_t>(column)], Qt::LeftButton);
}

QStringList Desk::column(const GridView& grid, int column) {
    QStringList texts;
    for (int row = 0; row < grid.rows(); ++row) texts << grid.text(row, column);
    return texts;
}
