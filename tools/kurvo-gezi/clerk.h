// The hands and eyes of a person at the program: real keys and clicks, and pictures of what is seen.
#pragma once

#include "office.h"
#include "platform/date_picker.h"
#include "platform/grid_view.h"
#include "platform/prompt.h"
#include "register/program.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>

// What must be seen and is not ends the walk with these words.
void must(bool seen, const QString& words);

class Clerk {
public:
    // Starts the program on the office's hand-over file. Pictures go to `folder`, numbered from 01.
    Clerk(Office& office, const QString& folder);
    ~Clerk();
    Clerk(const Clerk&) = delete;
    Clerk& operator=(const Clerk&) = delete;

    Office& office() { return office_; }
    QDir folder() const { return folder_; }
    Program& program() { return program_; }
    Kurvo& kurvo() { return program_.form(); }
    KurvoYeni& record_form();  // which must be open

    // Acts on what a person could reach; a control that is hidden or disabled ends the walk.
    void press(QAbstractButton* button);
    void type(QLineEdit* box, const QString& text, Qt::Key then = Qt::Key_unknown);  // in place of what stands there
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});                     // where the focus is
    void click_cell(GridView& grid, int row, int column);
    void double_click_cell(GridView& grid, int row, int column);
    void choose(QComboBox* list, int position);                 // by the arrow keys
    void type_date(DatePicker* box, const QString& shown);      // "05.10.2026", then Tab
    void type_note(const QString& text);                        // at the caret of the note
    void write(QPlainTextEdit* box, const QStringList& lines);  // in place of what stands there

    // Imports the students of a table of semicolons: first name, last name, number, class group and the guardian's
    // telephone. `lines` must be what the panel says of it.
    void import_students(const QByteArray& table, const QStringList& lines);

    void resize(const QSize& size);  // of the active window
    // Grabs the active window; returns the file's path.
    QString picture(const QString& name);
    QStringList papers() const;  // names of the PDF files that came since, oldest first

    // The prompts that are to come and their answers.
    prompt::Script& prompts() { return prompts_; }
    // Throws for an exception in a handler, an unexpected prompt, or one that did not come.
    void check_quiet();

private:
    void reach(QWidget* control);
    QWidget& window();  // the active one, else the main form

    Office& office_;
    QDir folder_;
    QStringList older_papers_;  // of former walks
    int pictures_ = 0;
    QString failure_;
    prompt::Script prompts_;
    Program program_;
};
