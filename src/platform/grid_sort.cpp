#include "platform/grid_sort.h"

#include "platform/turkish.h"

#include <algorithm>
#include <numeric>

namespace {

bool all_digits(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// "1.250.000": one to three digits, then groups of three.
bool grouped(QStringView text) {
    qsizetype point = text.indexOf(u'.');
    if (point < 1 || point > 3 || !all_digits(text.first(point))) return false;
    for (; point < text.size(); point += 4)
        if (text[point] != u'.' || text.size() < point + 4 || !all_digits(text.sliced(point + 1, 3))) return false;
    return true;
}

}  // namespace

std::optional<double> grid_sort::number_of(QStringView cell) {
    cell = cell.trimmed();
    const bool negative = cell.startsWith(u'-');
    if (negative || cell.startsWith(u'+')) cell = cell.sliced(1);

    QString plain;
    const qsizetype comma = cell.indexOf(u',');
    const QStringView whole = comma < 0 ? cell : cell.first(comma);
    const bool turkish = all_digits(whole) || grouped(whole) || (comma == 0);
    if (turkish && (comma < 0 || all_digits(cell.sliced(comma + 1)))) {
        plain = cell.toString().remove(u'.').replace(u',', u'.');
    } else {
        const qsizetype point = cell.indexOf(u'.');
        if (point < 0 || !all_digits(cell.sliced(point + 1)) || (point > 0 && !all_digits(cell.first(point))))
            return {};
        plain = cell.toString();
    }
    const double value = plain.toDouble();
    return negative ? -value : value;
}

std::vector<int> grid_sort::ascending(const std::vector<QString>& cells) {
    std::vector<std::optional<double>> numbers;
    numbers.reserve(cells.size());
    for (const QString& cell : cells) numbers.push_back(number_of(cell));

    std::vector<int> order(cells.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int left_place, int right_place) {
        const auto left = static_cast<std::size_t>(left_place), right = static_cast<std::size_t>(right_place);
        if (numbers[left] && numbers[right]) return *numbers[left] < *numbers[right];
        if (numbers[left] || numbers[right]) return numbers[left].has_value();
        return turkish::compare(cells[left], cells[right]) < 0;
    });
    return order;
}
