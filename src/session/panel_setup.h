// The panels' grids and dates as they stand at the start.
#pragma once

class Kurvo;

// The list of students: its columns, no rows.
void set_up_list(Kurvo& kurvo);

// The name search, and each panel whose button the user sees. Dates are set to today.
void set_up_panels(Kurvo& kurvo);
