// The card of the chosen student, and the number box that chooses one.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <functional>

// What runs behind the card for the panels that the user's rights show. An empty function is skipped.
struct CardFollowers {
    std::function<void()> show_note;
    std::function<void()> show_overview, devam_toplu_doldur, etud_toplu_doldur, odeme_durumu, devam_gunu_yukle,
        etud_liste_doldur;
    // The button that Enter presses once the number box has shown its student; none where empty.
    std::function<QPushButton*()> default_button;
};

class StudentCard : public QObject {
    Q_OBJECT

public:
    StudentCard(Kurvo& kurvo, SessionContext& session, CardFollowers followers);

    // Shows the student whose number stands in LONO, then runs the followers. A number that is not on file changes
    // nothing: the former student stays. Throws std::runtime_error for a row without a name.
    void ogrenci_goster();

    // Shows the picture in Image1, scaled to fit. `path` is a bare name in the photo folder or holds ":\"; an empty
    // one, a missing file and a damaged picture leave Image1 empty.
    void foto_goster(const QString& path);
    // The same with a picture that is at hand, as a camera gives it; not a null one.
    void show_picture(const QImage& picture);

    // The number box turns red while it does not hold the number of the card.
    void mark_number_box();

private:
    void LONO_GotFocus();
    QChar LONO_KeyPress(QChar key);
    void LONO_LostFocus();

    QSize place_of_picture() const;  // in the pixels of the screen
    QString field(std::string_view name);
    void fill_identity();
    void fill_note();
    void fill_codes();
    void fill_invoice_defaults();
    void run_followers();

    Kurvo& kurvo_;
    SessionContext& session_;
    CardFollowers followers_;
};
