#pragma once

#include <QObject>

class SeekTest : public QObject {
    Q_OBJECT

private slots:
    void finds_the_first_that_satisfies_data();
    void finds_the_first_that_satisfies();
    void wrong_use_is_refused();
    void prefix_scan_visits_one_student_data();
    void prefix_scan_visits_one_student();
    void prefix_scan_over_equal_keys();
    void prefix_scan_may_change_and_delete();
};

class OrderTest : public QObject {
    Q_OBJECT

private slots:
    void classes_stand_in_turkish_order();
    void case_does_not_tell_keys_apart();
    void null_stands_before_every_key();
    void equal_keys_stand_in_order_of_entry();
    void primary_order_is_the_first_index();
};

class CursorTest : public QObject {
    Q_OBJECT

private slots:
    void opens_on_the_first_row();
    void stays_where_it_was_after_adding();
    void moves_with_a_changed_key();
    void stays_on_the_deleted_place();
    void drops_a_cancelled_edit();
    void counts_exactly();
    void sees_writes_of_this_process_at_once();
    void forgets_what_a_scope_rolled_back();
    void edits_of_two_record_sets_join();
    void misuse_is_refused_data();
    void misuse_is_refused();
};

class ConversionTest : public QObject {
    Q_OBJECT

private slots:
    void assignment_converts_data();
    void assignment_converts();
    void assignment_is_refused_data();
    void assignment_is_refused();
    void null_is_a_value_of_its_own();
    void value_reads_data();
    void value_reads();
};

class FieldsTest : public QObject {
    Q_OBJECT

private slots:
    void student_table_is_kept_in_its_order();
    void definitions_come_back();
    void any_field_can_be_asked_for_on_any_row();
    void fields_survive_a_change_of_habit();
};

class FileTest : public QObject {
    Q_OBJECT

private slots:
    void foreign_file_is_refused_data();
    void foreign_file_is_refused();
    void file_of_another_program_is_refused();
    void cut_file_is_refused();
    void new_file_is_complete_or_not_there();
    void new_file_is_shared_as_its_folder();
    void closing_releases_the_file();
    void scratch_file_takes_its_table();
    void locks_of_the_folder_are_tested();
};

class SharingTest : public QObject {
    Q_OBJECT

private slots:
    void no_change_is_lost_between_workstations();
    void edit_waits_then_says_who_holds_the_file();
    void killed_workstation_leaves_nothing_half_written_data();
    void killed_workstation_leaves_nothing_half_written();
    void failed_write_leaves_the_file_as_it_was();
    void duplicate_key_is_told();
    void gone_row_is_told();
    void busy_writer_lets_others_in();
};

class ModelTest : public QObject {
    Q_OBJECT

private slots:
    void two_openers_agree_with_a_map_data();
    void two_openers_agree_with_a_map();
};
