// The program in one piece: the main form, the session and the handlers of its panels.
#pragma once

#include "attendance/attendance_entry.h"
#include "attendance/attendance_summaries.h"
#include "collections/collection_screen.h"
#include "collections/posting.h"
#include "collections/statement.h"
#include "forms/kurvo.h"
#include "overview/dossier.h"
#include "overview/notes.h"
#include "overview/overview.h"
#include "platform/print_surface.h"
#include "register/name_search.h"
#include "register/photo_capture.h"
#include "register/record_window.h"
#include "register/student_card.h"
#include "register/student_import.h"
#include "register/student_list.h"
#include "session/context.h"
#include "session/institution_flag.h"
#include "session/start_up.h"
#include "session/terms.h"
#include "study/booking.h"
#include "study/day_board.h"
#include "study/session_summaries.h"

// Needs a QApplication. One at a time: it stands for the workstation's session.
class Program : public QObject {
    Q_OBJECT

public:
    Program();
    ~Program() override;

    Kurvo& form() { return kurvo_; }
    SessionContext& session() { return session_; }
    KurvoYeni* record_form() const { return record_window_.form(); }  // nullptr while it is not open

    // Takes what the launcher handed over and shows the filled form. False when the session has ended already
    // because the data belong to another version. Throws with a Turkish text that names the file.
    bool start();

private:
    CardFollowers followers();
    void tell_file(const PrintSurface::Document& paper);
    void end();

    SessionContext session_;
    Kurvo kurvo_;
    Terms terms_;
    InstitutionFlag institution_flag_;
    Statement statement_;
    AttendanceSummaries attendance_summaries_;
    AttendanceEntry attendance_entry_;
    SessionSummaries session_summaries_;
    DayBoard day_board_;
    Booking booking_;
    Notes notes_;
    Overview overview_;
    Dossier dossier_;
    StudentCard card_;
    StudentList list_;
    NameSearch search_;
    StudentImport import_;
    PhotoCapture photos_;
    RecordWindow record_window_;
    CollectionScreen collections_;
    Posting posting_;
    StartUp start_up_;
};
