// The columns of the collection panel's two grids, by their meaning.
#pragma once

#include <QStringList>

// FTahsil_Tablo2, the open instalments; no heading row.
namespace open_grid {

inline constexpr int mark = 0;   // "X" chosen, " " not
inline constexpr int vade = 1;   // DD.MM.YYYY
inline constexpr int kalan = 2;  // picture of the open amount
inline constexpr int odsek = 3;  // word
inline constexpr int ack = 4;
inline constexpr int odenecek = 6;  // plain digits of what is to be paid now; empty for nothing

}  // namespace open_grid

// FTahsil_TABLO4, the chosen instalments; one heading row, whose texts stand over other columns than they name.
namespace chosen_grid {

inline constexpr int vade = 0;
inline constexpr int odsek = 1;
inline constexpr int ack = 2;
inline constexpr int kalan = 3;   // picture of the open amount
inline constexpr int odenen = 4;  // what is paid now, plain digits or their picture
inline const QStringList headings{QStringLiteral(" Vade Tarihi"), QStringLiteral(" Tutar"),
                                  QStringLiteral(" Ödeme Şekli"), QStringLiteral(" Açıklama"),
                                  QStringLiteral(" Ödenen")};

}  // namespace chosen_grid
