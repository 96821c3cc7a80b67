// A clerk at the plan of the record form: the real form on the files of one term, in a folder of its own.
#pragma once

#include "fees/instalment_plan.h"
#include "platform/clock.h"
#include "platform/prompt.h"
#include "support/drives.h"
#include "support/grids.h"

#include <vector>

struct Instalment {
    QString vade;
    double tutar;
    double odenen = 0;
    int odsek = 2;
};

class PlanDesk {
    struct Office {
        Office();
        Drives drives;
    } office_;
    const clock_source::Override clock_;  // 24 November 2026

public:
    // Student 1250 with these instalments; 1249 and 1251 owe something too.
    explicit PlanDesk(const std::vector<Instalment>& instalments = {});

    static void instalment(int student, const Instalment& instalment);
    // The instalments of student 1250, each as "VADE TUTAR/ODENEN".
    QStringList rows() const;
    QString row(const QString& vade, std::string_view field) const;

    void enter(const QString& vade, const QString& amount);  // into the entry row
    void click_row(int row) const { click_cell(*form.TABLO2, row, 1); }
    void double_click_row(int row) const { click_cell(*form.TABLO2, row, 1, true); }
    static void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    KurvoYeni form;
    SessionContext session;
    bool student_stored = true;
    QStringList rows_when_stored;
    InstalmentPlan plan;
    prompt::Script prompts;
};
