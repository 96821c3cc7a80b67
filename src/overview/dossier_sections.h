// The four sections of a dossier, printed from what the grids of the overview show.
#pragma once

#include "forms/kurvo.h"
#include "overview/dossier_pages.h"
#include "store/record.h"

namespace dossier_sections {

// Instalments with the collections on each, which come from the term's table Tahsilat, and the card's totals.
void payments(DossierPages& pages, const Kurvo& kurvo, store::Database& term);

// Days of absence from classes, and from compulsory study.
void absences(DossierPages& pages, const Kurvo& kurvo);
void study_absences(DossierPages& pages, const Kurvo& kurvo);

// Booked study sessions, and how many of each lesson.
void study_sessions(DossierPages& pages, const Kurvo& kurvo);

}  // namespace dossier_sections
