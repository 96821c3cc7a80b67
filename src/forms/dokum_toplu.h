// The page template of a dossier: a sheet of A4 at 96 dots to the inch that is never shown on the screen.
#pragma once

#include "ui_dokum_toplu.h"

#include <QWidget>

// Its labels hold what the first page prints, SAYFANO the number of the page that is being printed. The identity block
// ends above 2800 twips, where FrameNOT with the family and the note begins.
class DokumToplu : public QWidget, public Ui::DokumToplu {
    Q_OBJECT

public:
    DokumToplu();
};
