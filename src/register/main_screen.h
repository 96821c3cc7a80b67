// What an operation on the record form brings up to date on the main form behind it.
#pragma once

#include "forms/kurvo.h"
#include "register/student_card.h"
#include "register/student_list.h"

struct MainScreen {
    Kurvo& kurvo;
    StudentList& list;
    StudentCard& card;

    // Puts the number into LONO and the student onto the card. Moves studentTable to that row.
    void show_student(const QString& number) const {
        kurvo.LONO->setText(number);
        card.ogrenci_goster();
    }
};
