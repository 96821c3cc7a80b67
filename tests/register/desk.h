// A clerk's desk: the main form with list, card and search on the students of one term, in a folder of its own.
#pragma once

#include "platform/grid_view.h"
#include "register/name_search.h"
#include "register/student_card.h"
#include "register/student_list.h"
#include "support/drives.h"

#include <vector>

// Fields of one student; the others are blank or 0.
using Row = std::vector<std::pair<std::string_view, store::Value>>;

class Desk {
    struct Office {
        explicit Office(const std::vector<Row>& students);
        Drives drives;
    } office_;

public:
    explicit Desk(const std::vector<Row>& students, const QString& hide_archived = QStringLiteral("0"));

    // Real key presses, also of the letters that QtTest's own keys do not know.
    static void type(QWidget* box, const QString& text);
    void type_number(const QString& number, Qt::Key then = Qt::Key_Return);
    static void click_cell(const GridView& grid, int row, int column);
    void click_heading(int column);
    // The texts of a column from top to bottom.
    static QStringList column(const GridView& grid, int column);
    static QColor text_color(const QWidget* label) { return label->palette().color(QPalette::WindowText); }

    const Drives& drives = office_.drives;
    Kurvo kurvo;
    SessionContext session;
    QStringList followed;            // what ran behind the card, in order
    QPushButton* to_mark = nullptr;  // the default button once the number box is left
    StudentCard card;
    StudentList list;
    NameSearch search;
};
