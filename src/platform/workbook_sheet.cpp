#include "platform/workbook_sheet.h"

#include "platform/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <tuple>
#include <utility>

namespace workbook {

namespace {

// More than any school writes, and some hundreds of megabytes at the worst.
constexpr std::int64_t most_texts = 4'000'000, most_characters = 64'000'000;

bool stands_before(const Cell& left, const Cell& right) {
    return std::tie(left.row, left.column) < std::tie(right.row, right.column);
}

}  // namespace

void Sheet::add(std::int64_t row, std::int64_t column, const QString& text) {
    characters_ += text.size();
    add_counted(row, column, text);
}

void Sheet::count(const QString& text) {
    characters_ += text.size();
    if (++texts_ > most_texts || characters_ > most_characters) throw too_large();
}

void Sheet::add_counted(std::int64_t row, std::int64_t column, const QString& text) {
    if (text.isEmpty()) return;
    if (row < 1 || column < 1) throw damaged();
    if (row > most_rows || column > most_columns || characters_ > most_characters) throw too_large();
    if (cells_.size() >= static_cast<std::size_t>(most_texts)) throw too_large();
    cells_.push_back({static_cast<int>(row), static_cast<int>(column), text});
}

std::vector<Cell> Sheet::take() {
    if (!std::ranges::is_sorted(cells_, stands_before)) std::ranges::stable_sort(cells_, stands_before);
    const auto same_place = [](const Cell& left, const Cell& right) { return !stands_before(right, left); };
    const auto first_kept = std::unique(cells_.rbegin(), cells_.rend(), same_place).base();
    cells_.erase(cells_.begin(), first_kept);
    return std::exchange(cells_, {});
}

// Through the decimal form that a spreadsheet shows, so that 0.1 + 0.2 is "0.3".
QString text_of(double number) {
    constexpr int digits_behind_first = 14;
    constexpr double whole_below = 1e15;
    if (std::abs(number) < whole_below && number == std::trunc(number))
        return QString::number(static_cast<std::int64_t>(number));
    char form[40];
    const auto end =
        std::to_chars(std::begin(form), std::end(form), number, std::chars_format::scientific, digits_behind_first);
    double rounded = 0;
    std::from_chars(form, end.ptr, rounded);
    return numbers::plain(rounded);
}

QString text_of(bool truth) {
    return truth ? QStringLiteral("DOĞRU") : QStringLiteral("YANLIŞ");
}

std::runtime_error damaged() {
    return std::runtime_error("Dosya bozuk ya da eksik.");
}
std::runtime_error encrypted() {
    return std::runtime_error("Dosya parola ile korunuyor; parolasız olarak kaydediniz.");
}
std::runtime_error too_large() {
    return std::runtime_error("Dosyanın içeriği çok büyük.");
}
std::runtime_error no_workbook() {
    return std::runtime_error("Dosya bir çalışma kitabı değil; .xlsx, .xls, .ods ya da .csv olarak kaydediniz.");
}
std::runtime_error no_table() {
    return std::runtime_error("Dosyanın etkin sayfasında tablo yok.");
}

}  // namespace workbook
