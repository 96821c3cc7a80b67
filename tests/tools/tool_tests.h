#pragma once

#include "support/drives.h"

#include <QObject>

#include <optional>

class CsvTest : public QObject {
    Q_OBJECT
private slots:
    void reads_fields_as_written_data();
    void reads_fields_as_written();
    void names_the_line_of_what_it_refuses_data();
    void names_the_line_of_what_it_refuses();
    void quotes_only_what_needs_it();
};

class TableCopyTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { drives_.reset(); }
    void dumps_in_the_order_asked_for();
    void what_is_dumped_loads_as_the_same();
    void numbers_keep_every_digit_data();
    void numbers_keep_every_digit();
    void missing_columns_are_null();
    void refuses_whole_and_names_line_and_field_data();
    void refuses_whole_and_names_line_and_field();
    void empties_first_when_asked();
    void lists_tables_with_fields_and_indexes();

private:
    std::optional<Drives> drives_;
};

class SchoolTest : public QObject {
    Q_OBJECT
private slots:
    void init() { drives_.emplace(); }
    void cleanup() { drives_.reset(); }
    void makes_every_file_with_its_tables();
    void refuses_an_existing_file_and_makes_nothing();
    void takes_back_what_it_made_when_a_file_fails();
    void adds_a_term_to_an_old_school_alone();
    void a_second_school_keeps_the_running_programs();
    void stamps_the_version_and_sets_users();

private:
    std::optional<Drives> drives_;
};

class LaunchTest : public QObject {
    Q_OBJECT
private slots:
    void init() { drives_.emplace(); }
    void cleanup() { drives_.reset(); }
    void writes_the_eighteen_items();
    void notes_the_running_program_once();
    void refuses_what_the_file_cannot_hold_data();
    void refuses_what_the_file_cannot_hold();

private:
    std::optional<Drives> drives_;
};

// One sample school for all tests of its rows.
class SampleTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { drives_.reset(); }
    void students_keep_the_encoding_rules();
    void classes_and_photos_are_there();
    void plans_add_up_to_the_fee();
    void payments_add_up_and_link_to_the_cash_book();
    void document_numbers_follow_the_days();
    void absences_have_hours_and_known_lessons();
    void sessions_are_booked_once_and_partly_attended();
    void prices_end_with_the_discounts();
    void has_every_kind_of_student();

private:
    std::optional<Drives> drives_;
};

class SampleMoneyTest : public QObject {
    Q_OBJECT
private slots:
    void due_dates_follow_the_months_data();
    void due_dates_follow_the_months();
    void same_seed_same_school();
    void two_terms_share_the_cash_book();
    void scale_sets_the_numbers_of_rows();
};

class ProgramTest : public QObject {
    Q_OBJECT
private slots:
    void init() { drives_.emplace(); }
    void cleanup() { drives_.reset(); }
    void exit_status_tells_refusal_from_wrong_use_data();
    void exit_status_tells_refusal_from_wrong_use();
    void every_verb_has_help_data();
    void every_verb_has_help();
    void takes_a_table_from_one_file_to_another();
    void hands_over_what_the_options_say();
    void says_when_the_program_is_not_there();

private:
    std::optional<Drives> drives_;
};
