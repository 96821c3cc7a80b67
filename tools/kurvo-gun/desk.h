// What the clerks of both desks do in the same way: choose students, take payments, enter records and absences.
#pragma once

#include "walk.h"

enum class Paper { none, receipt, invoice, plan };

// One collection as the clerk takes it; what is empty is left as the program proposes it.
struct Collection {
    int student = 0;
    std::vector<int> rows = {};  // clicked among the open instalments
    QString amount = {};         // typed instead of clicks
    QString corrected = {};      // typed over the amount of the first chosen instalment
    Paper paper = Paper::none;
    QString document = {};     // a number of the clerk's own
    QString slip = {};         // of the cash book
    QString date = {};         // "02.10.2026"
    int cash_type = 0;         // place in the list of cash types; the first is the lira
    QString cash_amount = {};  // in that unit
};

// One row of a plan that is entered by hand.
struct PlanRow {
    QString due;  // "05.11.2026"
    QString amount;
    int form = 0;  // place in the list of payment forms
    QString remark;
};

class Desk {
public:
    explicit Desk(Clerk& person) : clerk(person), kurvo(person.kurvo()) {}

    // Waits until the other desk has come as far: says so on the standard output, goes on at a line from the standard
    // input.
    static void meet();

    void pick(int student, const QString& name);  // must be shown by this name
    void take(const Collection& collection);      // up to the button that posts
    void post();                                  // must bring the paper that was chosen

    KurvoYeni& form() { return clerk.record_form(); }
    void open_record_form();
    void add_instalment(const PlanRow& row);
    void print_contract_and_notes();
    void save();  // must leave the form empty
    void close_record_form();

    void open_attendance();
    void enter_hours(int lesson, int kind, const QString& hours, Qt::Key then = Qt::Key_unknown);
    void print_dossier();
    void close_program();

    Clerk& clerk;
    Kurvo& kurvo;

private:
    void choose_paper(Paper paper);
    void must_print(qsizetype papers);

    bool prints_ = false;  // what is about to be posted
};

// The day of each desk. What one does between two meetings the other may do at the same time.
Walk first_desk(Clerk& clerk);
Walk second_desk(Clerk& clerk);
