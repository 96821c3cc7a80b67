// The columns of the grids that have headings of their own above them, in twips; one of width 1 is hidden.
#pragma once

#include <vector>

namespace column_widths {

inline const std::vector<int> list{500, 700, 2500};                        // TABLO
inline const std::vector<int> open{250, 1000, 1000, 1200, 2600, 1, 1430};  // FTahsil_Tablo2
inline const std::vector<int> chosen{960, 1080, 3240, 960, 960};           // FTahsil_TABLO4

}  // namespace column_widths
