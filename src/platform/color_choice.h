// The colour dialog of the program.
#pragma once

#include <QColor>

#include <functional>

namespace color_choice {

// Starts with `start`. Gives the colour it ends with; an invalid one where the clerk picks none.
QColor pick(const QColor& start);

// A choice in place of a person's for as long as the object lives (tests). It gets the start colour.
class Override {
public:
    explicit Override(std::function<QColor(const QColor&)> choice);
    ~Override();
    Override(const Override&) = delete;
    Override& operator=(const Override&) = delete;

private:
    std::function<QColor(const QColor&)> before_;
};

}  // namespace color_choice
