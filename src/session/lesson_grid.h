// A grid with a row for each lesson, laid out by panel_setup: code, name, and what is counted behind them.
#pragma once

namespace lesson_grid {

inline constexpr int code = 0, name = 1, first_counter = 2;

}  // namespace lesson_grid
