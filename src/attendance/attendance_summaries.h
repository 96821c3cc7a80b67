// The two attendance tabs of the overview: class, and compulsory study sessions.
#pragma once

#include "attendance/attendance_tables.h"
#include "forms/kurvo.h"
#include "session/context.h"

#include <QHash>
#include <QObject>

#include <vector>

class Terms;

class AttendanceSummaries : public QObject {
    Q_OBJECT

public:
    // All must outlive it. A switch of the term empties devam_kayitlari.
    AttendanceSummaries(Kurvo& kurvo, SessionContext& session, Terms& terms);

    // Fills both tabs for the number in LONO: totals of each lesson, every day with its excuse, totals of all.
    void devam_toplu_doldur();

    struct Absence {
        QString code, date;  // date as YYYYMMDD
        Hours hours;
        QString lesson;  // its name; empty where the school has given it up
    };

private:
    struct Tab {
        const AttendanceTables& tables;
        GridView& lessons;
        GridView& days;
        std::array<QLabel*, counter_fields.size()> totals;
    };
    Tab class_tab() const;
    Tab study_tab() const;
    void connect_days(GridView* days);

    void fill(const Tab& tab);
    void read_absences(const Tab& tab);
    QHash<QString, QString> read_excuses(const Tab& tab);
    void show_days(const Tab& tab);
    void FToplu_DEVAMS_Click(const GridView& days, int row);
    void FToplu_DERSLER_Click(int row);

    Kurvo& kurvo_;
    SessionContext& session_;
    std::vector<Absence> devam_kayitlari_;  // of the tab that was filled last, by date and lesson
};
