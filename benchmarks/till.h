// The part of the program that posts a payment on six instalments with an invoice number, the paper left out.
#pragma once

#include "collections/collection_screen.h"
#include "collections/posting.h"
#include "collections/statement.h"
#include "forms/kurvo.h"
#include "session/terms.h"

#include <string>
#include <vector>

namespace bench {

struct DueStudent {
    double number;
    std::vector<std::string> due_days;  // six
};

// Students with six open instalments or more.
std::vector<DueStudent> due_students(std::size_t count);

class Till {
public:
    Till();
    // All that comes before CommandOK: the student, six marks, the second stage with an invoice number.
    void prepare(double student);
    void post() { kurvo_.CommandOK->click(); }

private:
    SessionContext session_;
    Kurvo kurvo_;
    Terms terms_{kurvo_, session_};
    Statement statement_{kurvo_, session_};
    CollectionScreen screen_{kurvo_, session_, terms_};
    Posting posting_{kurvo_, session_, statement_, screen_, {[] {}, [] {}}};
};

}  // namespace bench
