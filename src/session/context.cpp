#include "session/context.h"

#include "platform/numbers.h"

#include <algorithm>

int SessionContext::line_width() const {
    constexpr double thickest = 100;  // what stands in the file is anybody's
    return static_cast<int>(std::clamp(numbers::val(lineThickness), 0.0, thickest));
}

bool SessionContext::card_is_of(const QString& number_box) const {
    return studentSelected && numbers::val(number_box) == static_cast<double>(shownStudent);
}
