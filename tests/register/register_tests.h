// The test classes of this folder.
#pragma once

#include <QObject>

class StudentCardTest : public QObject {
    Q_OBJECT

private slots:
    void number_shows_the_card_data();
    void number_shows_the_card();
    void only_digits_are_typed();
    void number_not_on_file_leaves_the_card_data();
    void number_not_on_file_leaves_the_card();
    void marked_button_waits_for_the_card();
    void unknown_codes_leave_their_labels();
    void leaver_and_hidden_student();
    void rights_choose_what_is_filled_data();
    void rights_choose_what_is_filled();
    void photo_data();
    void photo();
    void student_without_name_is_refused();
};

class StudentListTest : public QObject {
    Q_OBJECT

private slots:
    void headings_sort_by_value_and_alphabet();
    void refill_keeps_the_chosen_order();
    void click_and_keys_choose_a_student();
    void empty_list_does_nothing();
    void hidden_students_data();
    void hidden_students();
    void closed_list_is_remembered();
    void state_at_the_start_data();
    void state_at_the_start();
    void lock_outlives_the_closed_list();
};

class NameSearchTest : public QObject {
    Q_OBJECT

private slots:
    void surname_rule_data();
    void surname_rule();
    void capitals_are_typed_data();
    void capitals_are_typed();
    void hit_goes_to_the_card();
    void hits_grow_stale_by_a_sort();
    void empty_list_opens_no_search();
};
