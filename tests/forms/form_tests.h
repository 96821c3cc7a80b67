// The main form as it lies on the screen: panels, buttons, locks, keys, long texts.
#pragma once

#include <QObject>

class FormTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void panel_takes_its_part_of_the_work_area();
    void panel_button_is_pressed_while_its_panel_is_shown();
    void panel_buttons_close_up();
    void locks_count();
    void overlay_takes_what_it_covers_out_of_reach();
    void keys_respect_a_lock();
    void escape_leaves_only_an_overlay_with_a_way_out();
    void mnemonics_do_not_conflict();
    void every_control_has_a_name();
    void long_texts_move_and_cut_nothing_data();
    void long_texts_move_and_cut_nothing();
    void headings_stand_over_their_columns_data();
    void headings_stand_over_their_columns();
    void wrong_number_is_seen();
};
