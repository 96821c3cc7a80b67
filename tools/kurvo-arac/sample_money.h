// The plans of the sample school's students and what was paid on them.
#pragma once

#include "sample_students.h"
#include "store/record.h"

#include <vector>

namespace sample {

struct Instalment {
    QDate due;
    int amount = 0;
    int form = 0;  // ODSEK
    QString remark;
    int paid = 0;
};

struct Payment {
    QDate due;
    int amount = 0;
};

// What one student paid at the desk at one time.
struct Collection {
    QDate date;
    int student = 0;
    QString cash_text;  // who and which term, as the cash book says it
    std::vector<Payment> payments;
};

// The due dates of an automatic plan: a month apart, on the 28th in February and the 30th in the short months
// where the first day is later.
std::vector<QDate> due_dates(const QDate& first, int count);

std::vector<Instalment> draw_plan(const Student& student, const Scale& scale);
// Pays the plan as this student does, up to the last day; raises `paid` of the instalments.
std::vector<Collection> draw_collections(const Student& student, const QString& term, std::vector<Instalment>& plan);

void write_plan(store::Recordset& records, const Student& student, const std::vector<Instalment>& plan);

// Writes the rows of all collections of a term in the order of their dates: Kasa with free times, Tahsilat with
// their link, document numbers that go on from the series in Belgeno.
void write_collections(store::Database& reference, store::Recordset& paid, std::vector<Collection> collections,
                       Random random);

}  // namespace sample
