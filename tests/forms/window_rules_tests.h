// The test class of what the windows do beyond Qt's own.
#pragma once

#include <QObject>

class WindowRulesTest : public QObject {
    Q_OBJECT

private slots:
    void enter_presses_from_one_line_controls();
    void other_controls_keep_enter();
    void key_goes_to_the_control_without_a_button();
    void open_list_chooses_its_entry();
    void date_is_taken_first();
    void mnemonic_gives_the_focus_first();
    void heading_is_clicked();
};
