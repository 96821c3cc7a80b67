// The attendance panel: the lesson hours that a student missed on a day, and the excuse of that day.
#pragma once

#include "attendance/attendance_tables.h"
#include "forms/kurvo.h"
#include "session/context.h"

#include <QObject>

#include <functional>

class Terms;

// FDevam_Tablo2 shows one day of the student whose number stands in LONO: of class, or with Zetud ticked of the
// compulsory study sessions. What is typed over a cell stands in the cell at once; it is stored by
// FDevam_CommandKAYDET alone and lost when a day is loaded.
class AttendanceEntry : public QObject {
    Q_OBJECT

public:
    // All must outlive it. `devam_toplu_doldur` runs after a save of a user who sees the overview.
    AttendanceEntry(Kurvo& kurvo, SessionContext& session, Terms& terms, std::function<void()> devam_toplu_doldur);

    // Closes the cell box and shows what is stored of the day; nothing while no student is on the card. A lesson that
    // the school has given up gets a row without a name at the end.
    void devam_gunu_yukle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connect_panel();
    void connect_cell();

    void CommandDEVAMSIZLIK_Click();
    void FDevam_TARIH_GotFocus();
    void FDevam_CommandKAYDET_Click();
    void fdevam_GridEdit(QChar key);
    void FDevam_Cel_In_Change();
    bool FDevam_Cel_In_KeyDown(const QKeyEvent& event);
    bool FDevam_Tablo2_KeyPress(const QKeyEvent& event);

    void load_at_date();   // shows the day, with the focus on its date
    void devam_temizle();  // closes the cell box and empties the day
    void load_excuse();
    void load_lessons();
    bool save_lessons();  // whether a lesson of the day has hours now
    void save_excuse(bool kayit_var);
    Hours typed_hours(int row) const;

    void move_cell(int down, int right);
    void commit_cell();
    void hide_cell();

    const AttendanceTables& tables() const;
    double student() const;
    QString day() const;

    Kurvo& kurvo_;
    SessionContext& session_;
    std::function<void()> devam_toplu_doldur_;
};
