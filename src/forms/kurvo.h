// The main form: list and card at the left and above, one panel at a time in the work area.
#pragma once

#include "forms/kurvo_drawing.h"
#include "forms/window_rules.h"

#include <QWidget>

#include <array>
#include <vector>

// Passive: it lays itself out, knows which panel is shown, locks lists of controls and knows its default button.
// Every control is a member by its one name and has that name as object name; element i of an array X is X[i]
// and has the object name X_i.
class Kurvo : public QWidget, public DefaultButtonRule, public KurvoDrawing {
    Q_OBJECT

public:
    explicit Kurvo(QWidget* parent = nullptr);
    ~Kurvo() override;

    std::array<ClickableLabel*, 3> bslk;
    std::array<QFrame*, 2> Shape;        // the card and the work area
    std::array<QLabel*, 8> FToplu_OO{};  // only 4 to 7 are on the form
    std::array<QCheckBox*, 5> ChkY;
    std::array<QLineEdit*, 10> bas;

    enum class Panel { none, Tahsil, Devam, Etud, Not, Toplu, SBUL, Dosyadan };
    // Shows one panel, hides the others, and keeps the panel's button pressed as long as it is shown.
    void panel_goster(Panel panel);
    Panel shown_panel() const { return shown_panel_; }

    // Disables the controls and remembers which of them were enabled; kilidi_ac enables just those again.
    // Several locks may hold at once; a control is free when none holds it. A control that no lock holds stays
    // as it is.
    void kilitle(const std::vector<QWidget*>& controls);
    void kilidi_ac(const std::vector<QWidget*>& controls);
    // What would change the student or leave the panel: the panel buttons, the list, its headings, the number box and
    // the term list.
    std::vector<QWidget*> student_choice() const;

    // Places a panel button in the column of panel buttons; its top in twips as the rights mask counts it. Showing it
    // is the caller's.
    static constexpr int first_button_top = 480, button_step = 240;
    void place_button(QPushButton* button, int top_twips);

    // The number box in red while its number is not the card's.
    void mark_number_box(bool differs);
    // One line at the foot of the form: where a PDF went, what was stored.
    void status(const QString& text);

signals:
    void closing();  // the form is being closed by its user or by the program

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct PanelPlace {
        Panel panel;
        QFrame* frame;
        QPushButton* button;
        int margin_x, margin_y;  // twips inside the work area
    };
    struct Lock {
        QWidget* control;
        int count;
        bool was_enabled;
    };

    void set_up_controls();
    void set_up_list_column();
    void set_up_collections();
    void set_up_panels();
    void set_up_shortcuts();
    void lay_out_panels();
    void go_to_number();
    void go_to_search();

    std::vector<PanelPlace> panels_;
    Panel shown_panel_ = Panel::none;
    std::vector<Lock> locked_;
};
