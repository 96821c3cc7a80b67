#include "forms/dokum_toplu.h"

DokumToplu::DokumToplu() {
    setupUi(this);
    QFont paper_font = font();
    paper_font.setFamilies({QStringLiteral("Times New Roman")});
    setFont(paper_font);
}
