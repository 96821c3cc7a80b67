// A clerk at the record form: the main form and the record form on the files of a school of their own.
#pragma once

#include "desk.h"
#include "platform/clock.h"
#include "platform/prompt.h"
#include "register/record_window.h"
#include "session/terms.h"

using Fields = std::vector<std::pair<std::string_view, store::Value>>;

class RecordDesk {
    struct Office {
        explicit Office(const std::vector<Row>& students);
        Drives drives;
    } office_;
    const clock_source::Override clock_;  // 24 November 2026

public:
    // Files of the terms 2025 (empty) and 2026 with these students, class 12A and class 12AB, one bus.
    explicit RecordDesk(const std::vector<Row>& students = {});

    static const QString term_file, reference_file;
    static void add(const QString& file, std::string_view table, const Fields& fields);
    static void instalment(int student, const QString& vade, double tutar, double odenen = 0);

    // Presses the button of the main form, with this number in the number box.
    KurvoYeni& open(const QString& number = {});
    KurvoYeni& form() const { return *window.form(); }
    // Types the number into ONO and leaves the box.
    void enter_number(const QString& number) const;
    static void fill(QLineEdit* box, const QString& text);  // in place of what stood there, by real keys
    static void press(QAbstractButton* button);
    static void choose(QComboBox* list, const QString& entry);

    // One field of a student's row as text; "?" where there is no row.
    static QString field(int student, std::string_view name);
    static Fields row(int student);  // all fields

    const Drives& drives = office_.drives;
    Kurvo kurvo;
    SessionContext session;
    Terms terms;
    StudentCard card;
    StudentList list;
    std::vector<std::int64_t> published, removed;
    RecordWindow window;
    prompt::Script prompts;
};
