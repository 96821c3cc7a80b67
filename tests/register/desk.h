// A clerk's desk: the main form with list, card and search, and the record form, at a school of their own.
#pragma once

#include "platform/clock.h"
#include "platform/grid_view.h"
#include "platform/prompt.h"
#include "register/name_search.h"
#include "register/record_window.h"
#include "session/terms.h"
#include "support/grids.h"
#include "support/run_all.h"
#include "support/school.h"

// Fields of one student; the others are blank or 0.
using Row = School::Fields;

class Desk {
    const clock_source::Override clock_;  // 24 November 2026

public:
    // Files of the terms 2025 (empty) and 2026 with these students, class 12A and class 12AB, one bus.
    explicit Desk(const std::vector<Row>& students = {});

    // Real key presses, also of the letters that QtTest's own keys do not know.
    static void type(QWidget* box, const QString& text);
    static void fill(QLineEdit* box, const QString& text);  // in place of what stood there
    static void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void choose(QComboBox* list, const QString& entry);
    void type_number(const QString& number, Qt::Key then = Qt::Key_Return);  // into the main form's number box
    void click_heading(std::size_t column) { QTest::mouseClick(kurvo.bslk[column], Qt::LeftButton); }
    // The texts of a column from top to bottom.
    static QStringList column(const GridView& grid, int column);
    QStringList listed(int column = 1) const { return Desk::column(*kurvo.TABLO, column); }

    // Presses the button of the main form, with this number in the number box.
    KurvoYeni& open(const QString& number = {});
    KurvoYeni& form() const { return *window.form(); }
    void enter_number(const QString& number) const;  // into the record form's box, and leaves it

    void instalment(int student, const QString& vade, double tutar, double odenen = 0) const;
    // Two rows in each table that hangs on the number, the cash rows at "NNNN01" and "NNNN02" of 5 November 2026.
    void add_rows(int student);
    // How many rows the number has in Odeme, Devam, Dmazeret, Etud, EtudDevam, Emazeret and Tahsilat.
    QString counts(int student) const;
    // "?" where there is no row.
    QString field(int student, const QString& name) const { return school.row("Ogrenci", {student}).value(name, "?"); }
    QString cash_text(const QString& saat) const { return school.row("Kasa", {"20261105", saat}).value("ACK", "?"); }

    School school;
    const Drives& drives = school.drives;
    Kurvo kurvo;
    SessionContext session;
    Terms terms;
    QStringList followed;            // what ran behind the card, in order
    QPushButton* to_mark = nullptr;  // the default button once the number box is left
    StudentCard card;
    StudentList list;
    NameSearch search;
    std::vector<std::int64_t> published, removed;
    RecordWindow window;
    prompt::Script prompts;
};
