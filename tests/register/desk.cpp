#include "desk.h"

Desk::Desk(const std::vector<Row>& students)
    : clock_([] { return QDateTime(QDate(2026, 11, 24), QTime(9, 30)); }),
      terms(kurvo, session),
      card(kurvo, session,
           {{},
            {},
            [this] { followed << "devam_toplu"; },
            [this] { followed << "etud_toplu"; },
            [this] { followed << "odeme"; },
            [this] { followed << "devam"; },
            [this] { followed << "etud"; },
            [this] { return to_mark; }}),
      list(kurvo, session, card),
      search(kurvo, session, list),
      window(session, terms, {kurvo, list, card},
             {[this](const KurvoYeni& record) { published.push_back(record.ONO->text().toLongLong()); },
              [this](const KurvoYeni& record) { removed.push_back(record.ONO->text().toLongLong()); }}) {
    school.add_term("2025");
    school.school_class("12AB", "Eşit ağırlık").school_class("12A", "Sayısal grubu").stop(1, 0, "Merkez");
    for (const Row& student : students) {
        Row all;
        for (const store::FieldDef& field : store::table_of(store::FileKind::term, "Ogrenci").fields) {
            const bool is_text = field.type == store::FieldType::text || field.type == store::FieldType::memo;
            all.emplace_back(field.name, is_text ? store::Value(" ") : store::Value(0));
        }
        all.insert(all.end(), student.begin(), student.end());
        school.add("Ogrenci", all);
    }
    kurvo.TABLO->set_widths({500, 700, 2500});
    kurvo.TABLO_SBUL->set_widths({600, 1000, 3500, 1});
    session.dataRoot = school.data_root();
    session.termCode = school.term();
    session.photoFolder = "c:\\okul\\foto\\";
    session.userCode = "OYA";
    session.hideArchived = "0";
    session.uiFlags = "11";
    session.mayChangeFees = "1";
    session.collectionsAllowed = 1;
    session.termDb = store::OpenDatabase(school.term_file());
    session.studentTable = session.termDb.OpenRecordset("Ogrenci");
    session.studentTable.Index("ONOX");
    session.termDbOpen = true;
    list.term_opened();
    kurvo.CommandYENI->show();
    kurvo.show();
    if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the main form does not come up");
}

void Desk::type(QWidget* box, const QString& text) {
    for (const QChar letter : text)
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(type, Qt::Key_unknown, Qt::NoModifier, letter);
            QCoreApplication::sendEvent(box, &key);
        }
}

void Desk::fill(QLineEdit* box, const QString& text) {
    box->setFocus();
    box->selectAll();
    if (text.isEmpty()) QTest::keyClick(box, Qt::Key_Delete);
    type(box, text);
}

// By the keys of the closed list, as a clerk goes down to the entry.
void Desk::choose(QComboBox* list, const QString& entry) {
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int place = 0; place < list->findText(entry); ++place) QTest::keyClick(list, Qt::Key_Down);
}

void Desk::type_number(const QString& number, Qt::Key then) {
    fill(kurvo.LONO, number);
    QTest::keyClick(kurvo.LONO, then);
}

QStringList Desk::column(const GridView& grid, int column) {
    QStringList texts;
    for (int row = 0; row < grid.rows(); ++row) texts << grid.text(row, column);
    return texts;
}

KurvoYeni& Desk::open(const QString& number) {
    kurvo.LONO->setText(number);
    if (!number.isEmpty()) card.ogrenci_goster();
    press(kurvo.CommandYENI);
    // A window counts as active with its transient parent; the focus comes with the application's word only.
    if (!QTest::qWaitFor([this] { return QApplication::activeWindow() == window.form(); }))
        qFatal("the record form does not come up");
    return form();
}

void Desk::enter_number(const QString& number) const {
    fill(form().ONO, number);
    QTest::keyClick(form().ONO, Qt::Key_Tab);
}

void Desk::instalment(int student, const QString& vade, double tutar, double odenen) const {
    school.add("Odeme",
               {{"ONO", student}, {"VADE", vade}, {"TUTAR", tutar}, {"ODENEN", odenen}, {"ACK", " "}, {"ODSEK", 2}});
}

void Desk::add_rows(int student) {
    for (const QString& part : {QString("01"), QString("02")}) {
        const QString date = "202611" + part, saat = QString::number(student) + part;
        school.student(student)
            .instalment(date, 500)
            .payment(date, "20261105", saat, 100)
            .absence(date, "MT", 2, 0, 0)
            .study_absence(date, "MT", 2, 0, 0)
            .excuse(date, "rapor")
            .study_excuse(date, "rapor")
            .session("20261105", "09" + part, "1000", "MT", 1);
    }
}

QString Desk::counts(int student) const {
    QStringList texts;
    for (const char* table : {"Odeme", "Devam", "Dmazeret", "Etud", "EtudDevam", "Emazeret", "Tahsilat"})
        texts << QString::number(school.rows(table, {"ONO"}).count(QString::number(student)));
    return texts.join(u' ');
}
