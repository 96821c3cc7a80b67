// The test classes of this folder.
#pragma once

#include <QObject>

class StatementTest : public QObject {
    Q_OBJECT

private slots:
    void open_instalments_stand_in_order_of_their_dates();
    void every_instalment_shows_its_payments();
};

class CollectionScreenTest : public QObject {
    Q_OBJECT

private slots:
    void typed_amounts_spread_data();
    void typed_amounts_spread();
    void second_stage_holds_the_student();
    void double_click_posts_nothing();
    void corrections_and_the_way_back();
};

class PostingTest : public QObject {
    Q_OBJECT

private slots:
    void collection_becomes_rows();
    void documents();
    void today_is_forced();
    void taken_seconds_are_waited_for();
    void two_workstations_collect_from_one_student();
    void failure_keeps_what_was_written();
};

class ReceiptTest : public QObject {
    Q_OBJECT

private slots:
    void two_copies_on_one_sheet();
};

class InvoiceTest : public QObject {
    Q_OBJECT

private slots:
    void tax();
    void matrix_invoice_is_a_file();
};
