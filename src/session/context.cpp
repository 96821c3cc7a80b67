#include "session/context.h"

#include "platform/numbers.h"

bool SessionContext::card_is_of(const QString& number_box) const {
    return studentSelected && numbers::val(number_box) == static_cast<double>(shownStudent);
}
