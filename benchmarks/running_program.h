// The program with its main form filled, as a clerk has it after the start.
#pragma once

#include "big_school.h"
#include "register/program.h"

#include <QCoreApplication>

#include <stdexcept>

namespace bench {

class RunningProgram {
public:
    explicit RunningProgram(const BigSchool& school) {
        school.hand_over();
        if (!program_.start()) throw std::runtime_error("the program does not start");
        QCoreApplication::processEvents();
    }
    Program* operator->() { return &program_; }

private:
    Program program_;
};

}  // namespace bench
