// The contract as a paper, part by part from the top; a framed sheet that is full is followed by another.
#pragma once

#include "forms/kurvo_yeni.h"
#include "platform/money.h"
#include "platform/print_surface.h"

#include <QStringList>

class GridView;

// The parts are called in this order, each at most once. All values are those on the form; the wording of the closing
// note and its debtor are those on the panel Frame2. Nothing is sent to the printer.
class ContractPaper {
public:
    // `date` is printed as it stands. All must outlive the object.
    ContractPaper(PrintSurface& paper, const KurvoYeni& form, QString date);

    void heading(const QString& school);
    // One line each; one that begins with a blank stands in, one too long for the frame is broken at a blank.
    void clauses(const QStringList& lines);
    // An address too long for its place goes on under itself.
    void student();
    // Beside the student: the rows of the plan with an amount. Closes the frame under the longer of the two.
    void instalments();
    void closing_note();  // over the sum of the instalments; nothing where that is 0

private:
    void print_at(double x, const QString& text);
    void open_frame(double top);
    void close_frame(double bottom);
    void turn_full_sheet();
    void student_line(const QString& label, const QString& value);
    void instalments_heading(const QString& title);
    void instalment(const GridView& plan, int row);
    void note_address(double right);

    PrintSurface& paper_;
    const KurvoYeni& form_;
    const QString date_;
    double y_ = 0;            // top of the next line
    double frame_top_ = 0;    // of the frame that is open, or the bottom of the last one
    double block_top_ = 0;    // where the student's part begins on the current sheet
    double student_end_ = 0;  // below the student's part on the current sheet; 0 where it has none
    Money sum_;
};
