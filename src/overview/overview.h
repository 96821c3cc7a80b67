// The overview of a student on one tabbed page.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

// Its grids are filled whenever a student is shown, each by its own subsystem; opening it reads nothing. While the
// right button is held over an instalment of FToplu_Tablo2, Ftoplu_FTABLO3 lists what was collected on it.
class Overview : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    Overview(Kurvo& kurvo, SessionContext& session);

    // Fee, note and exam nets of the row on which session.studentTable stands. Does nothing where the user's rights
    // hide the overview.
    void show_student();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CommandTOPLU_Click();
    void FToplu_Tablo2_MouseDown(const QPoint& mouse);
    bool fill_collections();
    void place_popup(const QPoint& mouse);

    Kurvo& kurvo_;
    SessionContext& session_;
};
