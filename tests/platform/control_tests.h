// The test classes of the controls and prompts.
#pragma once

#include <QObject>

class GridViewTest : public QObject {
    Q_OBJECT

private slots:
    void heading_and_body_are_one_count();
    void missing_cell_is_refused();
    void clicks_of_the_mouse();
    void keys_on_the_current_cell();
    void dragging_moves_nothing();
    void current_cell_stays_in_range();
    void filling_tells_the_view_once();
    void columns_in_twips();
    void columns_keep_their_cells();
    void cell_lies_where_it_is_painted();
    void told_colour_is_readable();
};

class GridSortTest : public QObject {
    Q_OBJECT

private slots:
    void order_data();
    void order();
    void rows_move_whole();
};

class ControlEventsTest : public QObject {
    Q_OBJECT

private slots:
    void lost_comes_before_got();
    void other_windows_are_no_change();
    void focus_moved_while_away();
    void lists_and_calendars_drop_down();
    void disabled_control_loses_the_focus();
    void handler_sends_the_focus_back();
    void keys_pass_the_filter();
    void input_method_passes_the_filter();
    void key_down_comes_first();
};

class ControlsTest : public QObject {
    Q_OBJECT

private slots:
    void date_is_typed_data();
    void date_is_typed();
    void date_changes_once();
    void date_parts_data();
    void date_parts();
    void editor_lies_over_the_cell();
    void long_name_moves_nothing();
};

class PromptTest : public QObject {
    Q_OBJECT

private slots:
    void keys_answer_data();
    void keys_answer();
    void script_keeps_what_went_wrong();
    void exception_stays_in_the_slot();
    void program_ends_once();
};
