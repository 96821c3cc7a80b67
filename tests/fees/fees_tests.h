// The test classes of this folder.
#pragma once

#include <QObject>

class AmountInWordsTest : public QObject {
    Q_OBJECT

private slots:
    void words_data();
    void words();
    void words_of_a_text_data();
    void words_of_a_text();
    void payment_forms_by_number_data();
    void payment_forms_by_number();
};

class AutomaticPlanTest : public QObject {
    Q_OBJECT

private slots:
    void discounts_data();
    void discounts();
    void amounts_data();
    void amounts();
    void due_dates_data();
    void due_dates();
};

class InstalmentPlanTest : public QObject {
    Q_OBJECT

private slots:
    void refill_shows_plan_and_totals();
    void first_instalment_stores_the_student();
    void rows_are_changed_and_moved_data();
    void rows_are_changed_and_moved();
    void entries_without_name_or_amount();
    void double_click_removes_data();
    void double_click_removes();
    void payment_of_another_workstation_keeps_the_row();
    void automatic_plan_data();
    void automatic_plan();
    void automatic_plan_keeps_what_stands();
    void panel_of_the_automatic_plan();
    void automatic_plan_is_refused_data();
    void automatic_plan_is_refused();
    void proposed_fee_data();
    void proposed_fee();
    void discount_keeps_its_number();
};

class BusServiceTest : public QObject {
    Q_OBJECT

private slots:
    void stop_is_picked_from_the_routes();
    void empty_table_opens_too();
};

class PromissoryNotesTest : public QObject {
    Q_OBJECT

private slots:
    void note_stands_on_its_form();
    void sheets_hold_four_data();
    void sheets_hold_four();
    void open_notes_alone_are_printed();
    void nothing_to_print();
    void words_are_kept_in_their_file();
    void refusals_print_nothing_data();
    void refusals_print_nothing();
};

class ContractTest : public QObject {
    Q_OBJECT

private slots:
    void contract_without_clauses();
    void clauses_stand_in_a_frame();
    void long_texts_fill_closed_sheets_data();
    void long_texts_fill_closed_sheets();
    void extra_sheet_goes_on_with_the_plan();
    void long_clauses_are_broken_at_blanks();
    void longest_addresses_run_into_nothing();
    void number_is_needed();
    void clauses_are_edited();
};
