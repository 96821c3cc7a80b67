// The rows of the table, by what they measure.
#pragma once

#include "alternating.h"
#include "big_school.h"

namespace bench {

void measure_store(Table& table, const BigSchool& school);
void measure_list(Table& table, const BigSchool& school);
void measure_card(Table& table, const BigSchool& school);
void measure_start(Table& table, const BigSchool& school);
void measure_posting(Table& table, const BigSchool& school);
void measure_search(Table& table, const BigSchool& school);
void measure_record_form(Table& table, const BigSchool& school);
void measure_renumbering(Table& table, const BigSchool& school);
void measure_dossier(Table& table, const BigSchool& school);
void measure_rich_text(Table& table, const BigSchool& school);
void measure_panels(Table& table, const BigSchool& school);
void measure_import(Table& table, const BigSchool& school);
void measure_server(Table& table, const BigSchool& school);
void measure_peers(Table& table, const BigSchool& school);
// Prints a table of its own.
void measure_growth(const QString& build_folder);

}  // namespace bench
