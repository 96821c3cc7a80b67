// The students of the sample school: who they are, and their rows in Ogrenci and Sinif.
#pragma once

#include "random.h"
#include "sample.h"
#include "store/record.h"

namespace sample {

struct Student {
    int index = 0;
    int number = 0;
    QString name;
    QString class_code;
    bool girl = false;
    bool weekend = false;  // comes on Saturday and Sunday
    bool hidden = false;
    bool left = false;
    bool debts_cancelled = false;  // on leaving
    QDate registered;
    QDate last_day;  // the leaving date, or the sample's present day
    int grade = 0;   // in `grades`
    int track = 0;   // in `tracks`
    int fee = 0;     // 0 for one who studies free
    int discount = 0;
    Random random{0};  // split it for each kind of thing
};

Student draw_student(int index, const SchoolYear& year, const Random& random, int students);
void write_student(store::Recordset& records, const Student& student, const QString& photo);
void write_classes(store::Recordset& classes, int students);

}  // namespace sample
