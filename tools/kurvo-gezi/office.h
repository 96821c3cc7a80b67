// The office that a clerk works in: a demo school that is made for the occasion, or a desk at a school that exists.
#pragma once

#include "platform/clock.h"

#include <QString>
#include <QTemporaryDir>

#include <cstdint>
#include <memory>
#include <vector>

struct OpenInstalment {
    QString vade;           // YYYYMMDD
    std::int64_t open = 0;  // whole currency units
};

// One workstation of a school.
struct Workstation {
    QString drives;   // native folder of the drives that this workstation sees
    QString root;     // of the school, "p:\\okul\\"
    QString user;     // who signs on
    QDateTime opens;  // when the clerk begins; the clock moves from there, a quarter of a second a look
    QString papers;   // native folder of the PDF files
};

// Sets KURVO_DRIVES and KURVO_PRINTER for the process, its clock, and the hand-over file of one start.
class Office {
public:
    // A demo school in a temporary folder of drives, on the sample's present day, with a contract of one clause; papers
    // become PDF files in `papers`.
    explicit Office(const QString& papers);
    // A desk at a school that exists, in its default term.
    explicit Office(const Workstation& desk);

    // What a walk compares the screen with, read from the files and not from the program.
    struct Person {
        int number = 0;
        QString name;
    };
    std::vector<Person> students() const;  // ascending by number
    Person debtor() const;                 // with a photograph and at least four open instalments
    std::vector<OpenInstalment> open_instalments(int number) const;
    std::int64_t cash_of_today() const;       // what Kasa holds of the present day
    QStringList cash_lines_of_today() const;  // their texts, oldest first
    int payments_of_today(int number) const;  // rows of Tahsilat
    QString term_file() const;
    QString reference_file() const;

private:
    std::unique_ptr<QTemporaryDir> own_drives_;  // of the demo school
    QString root_;
    clock_source::Override clock_;
};
