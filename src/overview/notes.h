// The note about the student on the card: a small word processor.
#pragma once

#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

class QTextCharFormat;

// Text1 is the note; CommandNot_EKLE alone stores it. Moving to another student drops what was not saved.
class Notes : public QObject {
    Q_OBJECT

public:
    // Both must outlive it.
    Notes(Kurvo& kurvo, SessionContext& session);

    // The note of the row on which session.studentTable stands, with the caret at its start. What was typed for the
    // former student can't be brought back by undo.
    void show_note();

private:
    void connect_formatting();

    void CommandNOT_Click();
    void CommandTARIHEKLE_Click();
    void CommandSAATEKLE_Click();
    void CommandRenk_Click();
    void CommandNot_EKLE_Click();

    void format_selection(const QTextCharFormat& format);
    QColor selection_color() const;

    Kurvo& kurvo_;
    SessionContext& session_;
};
