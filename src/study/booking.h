// The panel that books study sessions for the student on the card and cancels them.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <cstdint>
#include <functional>

// What shows sessions elsewhere and follows a booking. An empty function is skipped.
struct BookingFollowers {
    std::function<void()> gun_tahtasi_doldur, etud_toplu_doldur;
};

// A student has one session at a date and start; any number of students may share it, that is how groups arise.
// Nothing is stored or cancelled while LONO holds another number than the card's.
class Booking : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    Booking(Kurvo& kurvo, SessionContext& session, BookingFollowers followers);

    // Fills FEtud_Tablo1 with the sessions of the student in LONO, oldest first.
    void etud_liste_doldur();

private:
    void connect_times();
    void connect_lists();

    void CommandETUD_Click();
    void CommanOK_Click();
    void FEtud_Tablo1_DblClick(int row);
    void FEtud_Tablo2_Click(int row);

    void store_session();
    // Of a row of FEtud_Tablo1, without asking. False for a session that was attended: it stays.
    bool cancel(int row);
    void follow(const std::function<void()>& follower) const;

    Kurvo& kurvo_;
    SessionContext& session_;
    BookingFollowers followers_;
    // A press on the list that leaves the number box may bring another student's sessions under the pointer. A double
    // click that began with it meant a row of the former list.
    std::int64_t listed_student_ = 0;
    bool another_came_ = false, pressed_as_another_came_ = false;
};
