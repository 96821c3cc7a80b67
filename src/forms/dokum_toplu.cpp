#include "forms/dokum_toplu.h"

// A style sheet of the application stands between a form's font and its labels, so each gets it by itself.
DokumToplu::DokumToplu() {
    setupUi(this);
    const QStringList paper_family{QStringLiteral("Times New Roman")};
    const auto set = [&](QWidget& control) {
        QFont font = control.font();
        font.setFamilies(paper_family);
        control.setFont(font);
    };
    set(*this);
    for (QLabel* label : findChildren<QLabel*>()) set(*label);
}
