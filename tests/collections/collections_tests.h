// The test classes of this folder.
#pragma once

#include <QObject>

class StatementTest : public QObject {
    Q_OBJECT

private slots:
    void open_instalments_stand_in_order_of_their_dates();
    void totals_data();
    void totals();
    void nothing_is_shown_without_the_right();
};

class CollectionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void panel_needs_a_student();
    void clicks_take_whole_instalments();
    void typed_amounts_spread_data();
    void typed_amounts_spread();
    void odd_debts_end_data();
    void odd_debts_end();
    void other_cash_types_are_typed_by_the_clerk();
    void second_stage_holds_the_student();
    void double_click_posts_nothing();
    void corrections_and_the_way_back();
    void corrections_spread_again_after_typing();
    void documents_propose_the_next_number();
    void term_switch_ends_the_second_stage();
};

class PostingTest : public QObject {
    Q_OBJECT

private slots:
    void collection_becomes_rows();
    void documents_data();
    void documents();
    void next_number_follows_the_posted_one();
    void day_of_a_collection_data();
    void day_of_a_collection();
    void taken_seconds_are_waited_for();
    void two_workstations_collect_from_one_student();
    void refused_collections_write_nothing_data();
    void refused_collections_write_nothing();
    void rows_without_amount_or_instalment();
    void failure_keeps_what_was_written();
    void broken_printer_costs_only_the_paper();
    void payments_add_up();
};

class ReceiptTest : public QObject {
    Q_OBJECT

private slots:
    void two_copies_on_one_sheet();
    void last_payment_says_thanks();
};

class InvoiceTest : public QObject {
    Q_OBJECT

private slots:
    void letters_of_the_printer();
    void tax_data();
    void tax();
    void lines_follow_the_layout_data();
    void lines_follow_the_layout();
    void matrix_invoice_is_a_file();
    void laser_invoice_is_a_sheet_a_copy();
    void nothing_is_printed_data();
    void nothing_is_printed();
};
