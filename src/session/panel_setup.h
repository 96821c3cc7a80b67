// The panels' grids, lists and dates as they stand at the start.
#pragma once

class Kurvo;
struct SessionContext;

// The list of students: its columns, no rows.
void set_up_list(Kurvo& kurvo);

// The fonts and sizes that a note can be written in.
void set_up_note_fonts(Kurvo& kurvo);

// The name search, and each panel whose button the user sees. Dates are set to today.
void set_up_panels(Kurvo& kurvo, const SessionContext& session);

// The lessons and teachers of session.reference into the panels that the user sees.
void fill_lessons(Kurvo& kurvo, const SessionContext& session);

// The exam grids: their headings alone.
void set_up_exams(Kurvo& kurvo);
