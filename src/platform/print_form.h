// A form as the beginning of a page: what its labels, pictures and frames show, put on a paper.
#pragma once

class PrintSurface;
class QWidget;

namespace print_form {

// The size of a form's pixel on paper: 96 of them are one inch.
constexpr double twips_a_pixel = 15;
constexpr double twips(int pixels) {
    return pixels * twips_a_pixel;
}

// Puts the form on the current page with its corner in the page's: labels with their texts and fonts, pictures in
// their proportions, frames and rules as thin lines. What is hidden, and what begins below the form's lower edge, is
// left out. A text that is wider than its label gets smaller, and is elided where it would not be legible.
// The form needs not be shown. The surface keeps its line width; its font changes.
void put(PrintSurface& paper, const QWidget& form);

}  // namespace print_form
