// The columns of TABLO2, the plan on the record form; no heading row.
#pragma once

namespace plan_grid {

inline constexpr int sno = 0;    // running number from 1
inline constexpr int vade = 1;   // DD.MM.YYYY
inline constexpr int tutar = 2;  // picture
inline constexpr int odsek = 3;  // word
inline constexpr int ack = 4;
inline constexpr int odenen = 5;  // plain digits

}  // namespace plan_grid
