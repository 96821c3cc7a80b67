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

Text Sheet::keep(QStringView text) {
    const QStringView kept = text.left(longest_text);
    const Text place{static_cast<std::uint32_t>(table_.letters.size()), static_cast<std::uint16_t>(kept.size())};
    table_.letters.append(kept);
    if (++texts_ > most_texts || table_.letters.size() > most_characters) throw too_large();
    return place;
}

void Sheet::add(std::int64_t row, std::int64_t column, Text text) {
    if (text.length == 0) return;
    if (row < 1 || column < 1) throw damaged();
    if (row > most_rows || column > most_columns || table_.cells.size() >= most_texts) throw too_large();
    table_.cells.push_back(
        {static_cast<std::uint32_t>(row), static_cast<std::uint16_t>(column), text.length, text.begin});
}

Table Sheet::take() {
    QList<Cell>& cells = table_.cells;
    if (!std::ranges::is_sorted(cells, stands_before)) std::ranges::stable_sort(cells, stands_before);
    const auto same_place = [](const Cell& left, const Cell& right) { return !stands_before(right, left); };
    const auto first_kept = std::unique(cells.rbegin(), cells.rend(), same_place).base();
    cells.erase(cells.begin(), first_kept);
    return std::exchange(table_, {});
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
