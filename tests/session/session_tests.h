// The test classes of this folder.
#pragma once

#include <QObject>

class HandOverTest : public QObject {
    Q_OBJECT

private slots:
    void items_are_taken_by_position_data();
    void items_are_taken_by_position();
    void missing_file_is_refused();
    void short_file_is_refused_and_left();
};

class VersionCheckTest : public QObject {
    Q_OBJECT

private slots:
    void data_and_program_data();
    void data_and_program();
    void missing_row_is_refused();
    void stamped_file_is_left_free();
};

class UserOptionsTest : public QObject {
    Q_OBJECT

private slots:
    void options_by_position_data();
    void options_by_position();
    void user_without_record();
};

class ParameterFilesTest : public QObject {
    Q_OBJECT

private slots:
    void missing_prmt_is_made();
    void missing_fatura_is_made();
    void prmt_counts_positions_and_keeps_texts();
    void fatura_is_read_by_groups();
    void fatura_holds_sixteen_items();
    void cash_types_stand_as_they_are();
    void flags_of_the_screen_data();
    void flags_of_the_screen();
    void broken_file_names_what_is_missing_data();
    void broken_file_names_what_is_missing();
};

class TermsTest : public QObject {
    Q_OBJECT

private slots:
    void current_term_comes_first();
    void switch_by_keys_forgets_the_student();
    void current_term_reloads_too();
    void empty_code_opens_its_file();
    void vanished_file_leaves_no_term_open();
};

class StartUpTest : public QObject {
    Q_OBJECT

private slots:
    void form_comes_up_filled();
    void leftovers_and_new_files();
    void rights_place_the_buttons_data();
    void rights_place_the_buttons();
    void teachers_are_for_study_sessions_alone();
    void failure_names_the_file_data();
    void failure_names_the_file();
    void other_version_stops_and_signs_off();
    void closing_signs_off();
    void closing_is_never_held_up_data();
    void closing_is_never_held_up();
    void both_writers_of_the_flags();
};
