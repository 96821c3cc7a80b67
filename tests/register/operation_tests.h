// The test classes of what a student on the record form can go through as a whole.
#pragma once

#include <QObject>

class RenumberingTest : public QObject {
    Q_OBJECT

private slots:
    void number_goes_through_all_tables();
    void cash_book_text_data();
    void cash_book_text();
    void without_collections_the_cash_book_stays_closed();
    void refused_numbers_data();
    void refused_numbers();
    void cut_renumbering_goes_on();
    void cut_before_the_cash_book_goes_on();
    void panel_holds_the_buttons();
};

class DeletionTest : public QObject {
    Q_OBJECT

private slots:
    void student_leaves_all_tables();
    void nothing_goes_without_a_yes();
    void photo_of_that_very_name_data();
    void photo_of_that_very_name();
    void remote_directory_data();
    void remote_directory();
};

class TransferTest : public QObject {
    Q_OBJECT

private slots:
    void row_of_another_term_comes_to_the_form();
    void copy_is_saved_as_a_new_student();
    void numbers_are_looked_up();
    void without_numbers_data();
    void without_numbers();
    void class_group_by_whole_entry_data();
    void class_group_by_whole_entry();
};
