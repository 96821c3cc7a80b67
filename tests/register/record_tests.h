// The test classes of the record form.
#pragma once

#include <QObject>

class RecordFormTest : public QObject {
    Q_OBJECT

private slots:
    void opens_on_the_student_of_the_card();
    void opens_empty_and_waits_for_a_number();
    void row_stands_in_its_controls();
    void class_group_is_found_by_its_beginning_data();
    void class_group_is_found_by_its_beginning();
    void only_digits_make_a_number();
    void number_not_on_file_keeps_what_is_typed();
    void rights_decide_about_fee_and_plan_data();
    void rights_decide_about_fee_and_plan();
    void rights_decide_about_deletion_and_leaving_data();
    void rights_decide_about_deletion_and_leaving();
    void hidden_student_is_out_of_reach();
    void next_number_data();
    void next_number();
    void cleared_form();
    void name_keys_data();
    void name_keys();
    void lists_are_filled();
    void photo_of_the_folder_keeps_its_bare_name_data();
    void photo_of_the_folder_keeps_its_bare_name();
    void closing_brings_the_card_up_to_date();
};

class RecordSavingTest : public QObject {
    Q_OBJECT

private slots:
    void life_of_a_student();
    void unchanged_save_changes_nothing();
    void new_row_is_filled();
    void number_is_asked_for();
    void fee_against_instalments_data();
    void fee_against_instalments();
    void telephones_data();
    void telephones();
    void wrong_telephone_after_a_refused_difference();
    void learned_lists();
    void departure_data();
    void departure();
    void departure_is_asked_about_once();
    void row_of_the_number_is_saved_wherever_the_cursor_was_led();
    void fee_without_the_right_data();
    void fee_without_the_right();
    void publishing_data();
    void publishing();
    void list_keeps_the_chosen_order();
};
