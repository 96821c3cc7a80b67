// How much a person may type into a box; what the program puts there stays whole.
#pragma once

#include <QLineEdit>

namespace typing_limit {

// Typing and pasting stop at `limit` characters, or where the box stands already if a longer text was loaded.
void set(QLineEdit* box, int limit);
// The same for a telephone: blanks, points and commas do not count.
void set_telephone(QLineEdit* box, int limit);

}  // namespace typing_limit
