// The test classes of files, numbers, rich text and papers.
#pragma once

#include <QObject>

class PathsTest : public QObject {
    Q_OBJECT

private slots:
    void names_are_mapped_data();
    void names_are_mapped();
    void case_does_not_matter_data();
    void case_does_not_matter();
    void exact_spelling_wins();
    void files_of_a_folder();
    void remove_tells_what_is_left();
};

class TextFileTest : public QObject {
    Q_OBJECT

private slots:
    void every_byte_comes_back();
    void letter_without_a_place_is_refused();
    void lines_data();
    void lines();
    void items_data();
    void items();
    void quoted_item_comes_back();
    void failure_names_the_file_as_told();
    void failed_write_leaves_the_old_file();
};

class NumbersTest : public QObject {
    Q_OBJECT

private slots:
    void readers_data();
    void readers();
    void huge_texts_end();
    void pictures_data();
    void pictures();
    void money_is_rounded_data();
    void money_is_rounded();
    void plain_digits_data();
    void plain_digits();
    void dates_are_cut_by_position();
    void clock_can_be_set();
};

class TurkishTest : public QObject {
    Q_OBJECT

private slots:
    void cases_data();
    void cases();
    void alphabet_in_order();
    void order_data();
    void order();
    void order_is_total();
};

class RichTextTest : public QObject {
    Q_OBJECT

private slots:
    void plain_text_of_writers_data();
    void plain_text_of_writers();
    void plain_text_comes_back_data();
    void plain_text_comes_back();
    void formatting_is_read();
    void formatting_comes_back();
    void broken_input_ends();
    void deep_groups_and_pictures();
};

class PrintSurfaceTest : public QObject {
    Q_OBJECT

private slots:
    void position_follows_the_text();
    void amounts_end_at_one_edge();
    void document_is_sent_once();
    void positions_in_the_pdf();
    void file_names_never_collide();
    void refusals_are_told();
};
