// The test classes of this folder.
#pragma once

#include <QObject>

class AmountInWordsTest : public QObject {
    Q_OBJECT

private slots:
    void words();
};

class AutomaticPlanTest : public QObject {
    Q_OBJECT

private slots:
    void discounts();
    void amounts();
    void due_dates();
};

class InstalmentPlanTest : public QObject {
    Q_OBJECT

private slots:
    void refill_shows_plan_and_totals();
    void first_instalment_stores_the_student();
    void rows_are_changed_and_moved_data();
    void rows_are_changed_and_moved();
    void double_click_removes();
    void payment_of_another_workstation_keeps_the_row();
    void automatic_plan();
    void automatic_plan_keeps_what_stands();
    void automatic_plan_is_refused();
};

class PromissoryNotesTest : public QObject {
    Q_OBJECT

private slots:
    void note_stands_on_its_form();
    void sheets_hold_four();
    void open_notes_alone_are_printed();
    void words_are_kept_in_their_file();
};

class ContractTest : public QObject {
    Q_OBJECT

private slots:
    void contract_without_clauses();
    void clauses_stand_in_a_frame();
    void long_texts_fill_closed_sheets();
    void clauses_are_edited();
};
