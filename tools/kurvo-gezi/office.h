// The demo school that the walks work on: in a temporary folder of drives, on the sample's present day.
#pragma once

#include "platform/clock.h"

#include <QString>
#include <QTemporaryDir>

#include <cstdint>
#include <vector>

struct OpenInstalment {
    QString vade;           // YYYYMMDD
    std::int64_t open = 0;  // whole currency units
};

// Sets KURVO_DRIVES and KURVO_PRINTER for the process; papers become PDF files in `papers`.
class Office {
public:
    explicit Office(const QString& papers);

    // What a walk compares the screen with, read from the files and not from the program.
    struct Person {
        int number = 0;
        QString name;
    };
    std::vector<Person> students() const;  // ascending by number
    Person debtor() const;                 // with a photograph and at least four open instalments
    std::vector<OpenInstalment> open_instalments(int number) const;
    std::int64_t cash_of_today() const;       // what Kasa holds of the present day
    int payments_of_today(int number) const;  // rows of Tahsilat
    QString term_file() const;
    QString reference_file() const;

private:
    QTemporaryDir drives_;
    clock_source::Override clock_;
};
