#include "record_desk.h"

#include "platform/numbers.h"

#include <QTest>

const QString RecordDesk::term_file = QStringLiteral("c:\\okul\\data\\2026ogr.mdb");
const QString RecordDesk::reference_file = QStringLiteral("c:\\okul\\data\\Bilgi.mdb");

namespace {

const QString former_term_file = QStringLiteral("c:\\okul\\data\\2025ogr.mdb");

Fields with_blanks(const store::TableDef& table, const Fields& fields) {
    Fields all;
    for (const store::FieldDef& field : table.fields) {
        const bool is_text = field.type == store::FieldType::text || field.type == store::FieldType::memo;
        all.emplace_back(field.name, is_text ? store::Value(" ") : store::Value(0));
    }
    all.insert(all.end(), fields.begin(), fields.end());
    return all;
}

}  // namespace

RecordDesk::Office::Office(const std::vector<Row>& students) {
    for (const char* folder : {"c/okul/data", "c/okul/foto", "c/qlm"}) QDir().mkpath(drives.path(folder));
    for (const QString& term : {former_term_file, term_file})
        store::create_file(term, store::catalogue(store::FileKind::term));
    store::create_file(reference_file, store::catalogue(store::FileKind::reference));
    const store::TableDef& table = store::table_of(store::FileKind::term, "Ogrenci");
    for (const Row& student : students) add(term_file, "Ogrenci", with_blanks(table, student));
    add(term_file, "Sinif", {{"SINIF", "12AB"}, {"ACK", "Eşit ağırlık"}});
    add(term_file, "Sinif", {{"SINIF", "12A"}, {"ACK", "Sayısal grubu"}});
    add(reference_file, "Servis", {{"SNO", 1}, {"DRK", 0}, {"ACK", "Merkez"}});
}

RecordDesk::RecordDesk(const std::vector<Row>& students)
    : office_(students),
      clock_([] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }),
      terms(kurvo, session),
      card(kurvo, session, {}),
      list(kurvo, session, card),
      window(session, terms, {kurvo, list, card},
             {[this](std::int64_t number) { published.push_back(number); },
              [this](std::int64_t number) { removed.push_back(number); }}) {
    kurvo.TABLO->set_widths({500, 700, 2500});
    session.dataRoot = QStringLiteral("c:\\okul\\");
    session.termCode = QStringLiteral("2026");
    session.photoFolder = QStringLiteral("c:\\okul\\foto\\");
    session.userCode = QStringLiteral("OYA");
    session.hideArchived = QStringLiteral("0");
    session.uiFlags = QStringLiteral("11");
    session.mayChangeFees = QStringLiteral("1");
    session.collectionsAllowed = 1;
    session.termDb = store::OpenDatabase(term_file);
    session.studentTable = session.termDb.OpenRecordset("Ogrenci");
    session.studentTable.Index("ONOX");
    session.termDbOpen = true;
    list.term_opened();
    kurvo.CommandYENI->show();
    kurvo.show();
    if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the main form does not come up");
}

void RecordDesk::add(const QString& file, std::string_view table, const Fields& fields) {
    store::Database database = store::OpenDatabase(file);
    store::Recordset records = database.OpenRecordset(table);
    records.AddNew();
    for (const auto& [name, value] : fields) records[name] = value;
    records.Update();
}

void RecordDesk::instalment(int student, const QString& vade, double tutar, double odenen) {
    add(term_file, "Odeme",
        {{"ONO", student}, {"VADE", vade}, {"TUTAR", tutar}, {"ODENEN", odenen}, {"ACK", " "}, {"ODSEK", 2}});
}

KurvoYeni& RecordDesk::open(const QString& number) {
    kurvo.LONO->setText(number);
    if (!number.isEmpty()) card.ogrenci_goster();
    press(kurvo.CommandYENI);
    // A window counts as active with its transient parent; the focus comes with the application's word only.
    if (!QTest::qWaitFor([this] { return QApplication::activeWindow() == window.form(); }))
        qFatal("the record form does not come up");
    return form();
}

void RecordDesk::enter_number(const QString& number) const {
    form().ONO->setFocus();
    fill(form().ONO, number);
    QTest::keyClick(form().ONO, Qt::Key_Tab);
}

void RecordDesk::fill(QLineEdit* box, const QString& text) {
    box->setFocus();
    box->selectAll();
    if (text.isEmpty()) QTest::keyClick(box, Qt::Key_Delete);
    Desk::type(box, text);
}

void RecordDesk::press(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton);
}

// By the keys of the closed list, as a clerk goes down to the entry.
void RecordDesk::choose(QComboBox* list, const QString& entry) {
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int place = 0; place < list->findText(entry); ++place) QTest::keyClick(list, Qt::Key_Down);
}

QString RecordDesk::field(int student, std::string_view name) {
    store::Database term = store::OpenDatabase(term_file);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    students.Index("ONOX");
    students.Seek("=", {student});
    return students.NoMatch() ? QStringLiteral("?") : students[name].text();
}

Fields RecordDesk::row(int student) {
    store::Database term = store::OpenDatabase(term_file);
    store::Recordset students = term.OpenRecordset("Ogrenci");
    students.Index("ONOX");
    students.Seek("=", {student});
    Fields fields;
    for (const store::FieldDef& field : store::table_of(store::FileKind::term, "Ogrenci").fields)
        fields.emplace_back(field.name, students[field.name].value());
    return fields;
}
