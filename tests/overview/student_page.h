// A workstation that shows the overview and the note of a student, at a school of its own.
#pragma once

#include "overview/notes.h"
#include "overview/overview.h"
#include "platform/clock.h"
#include "platform/prompt.h"
#include "session/panel_setup.h"
#include "session/terms.h"
#include "support/run_all.h"
#include "support/school.h"

struct StudentPage {
    StudentPage() {
        school.add_term("2025");
        session.dataRoot = school.data_root();
        session.termCode = school.term();
        session.collectionsAllowed = 1;
        for (QPushButton* button : {kurvo.CommandTOPLU, kurvo.CommandNOT}) button->show();
        set_up_panels(kurvo, session);
        set_up_note_fonts(kurvo);
        kurvo.SDONEM->addItems({"2026", "2025"});
        kurvo.resize(1366, 768);
        kurvo.show();
        if (!QTest::qWaitForWindowActive(&kurvo)) qFatal("the form does not come up");
    }

    // As the card does it.
    void show_student(int number) {
        if (!session.termDbOpen) terms.open();
        kurvo.LONO->setText(QString::number(number));
        session.studentTable.Seek("=", {number});
        session.studentSelected = true;
        session.shownStudent = number;
        notes.show_note();
        overview.show_student();
    }
    void switch_term(const QString& term) {
        kurvo.SDONEM->setCurrentText(term);
        terms.donem_degistir();
    }
    QString stored_note(int number) const { return school.row("Ogrenci", {number}).value("NOT"); }
    static void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    const clock_source::Override clock{[] { return QDateTime(QDate(2026, 11, 24), QTime(9, 5, 33)); }};
    School school;
    Kurvo kurvo;
    SessionContext session;
    Terms terms{kurvo, session};
    Overview overview{kurvo, session};
    Notes notes{kurvo, session};
    prompt::Script prompts;
};
