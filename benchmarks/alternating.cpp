#include "alternating.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {

namespace {

Seconds median(std::vector<Seconds> figures) {
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

std::string formatted(const char* pattern, double value) {
    char text[64];
    std::snprintf(text, sizeof text, pattern, value);
    return text;
}

}  // namespace

Seconds timed(const std::function<void()>& work, int times) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count() / times;
}

Seconds median_time(const Run& run, int runs) {
    run();
    std::vector<Seconds> figures;
    for (int i = 0; i < runs; ++i) figures.push_back(run());
    return median(std::move(figures));
}

std::string in_words(Seconds time) {
    if (time < 1e-3) return formatted("%.2f us", time * 1e6);
    return time < 1 ? formatted("%.2f ms", time * 1e3) : formatted("%.2f s", time);
}

Table::Table(std::string filter) : filter_(std::move(filter)) {}

void Table::compare(const std::string& act, double allowed, const Run& figure, const Run& floor, int runs) {
    if (!wants(act)) return;
    figure();
    floor();
    std::vector<Seconds> figures, floors;
    for (int run = 0; run < runs; ++run) {
        figures.push_back(figure());
        floors.push_back(floor());
    }
    const Seconds taken = median(figures), least = median(floors);
    print(act, in_words(taken), in_words(least), taken / least, formatted("%.1f", allowed), taken <= allowed * least);
}

void Table::limit(const std::string& what, double figure, double allowed, const std::string& unit) {
    if (!wants(what)) return;
    print(what, formatted("%.0f ", figure) + unit, "-", figure / allowed, formatted("%.0f ", allowed) + unit,
          figure <= allowed);
}

void Table::leave_out(const std::string& act, const std::string& why) {
    if (!wants(act)) return;
    begin();
    std::printf("%-52s left out: %s\n", act.c_str(), why.c_str());
    std::fflush(stdout);
}

void Table::begin() {
    if (!begun_) std::printf("%-52s %12s %12s %7s %10s\n", "act", "figure", "floor", "ratio", "allowed");
    begun_ = true;
}

void Table::print(const std::string& act, const std::string& figure, const std::string& floor, double ratio,
                  const std::string& allowed, bool holds) {
    begin();
    std::printf("%-52s %12s %12s %7.2f %10s  %s\n", act.c_str(), figure.c_str(), floor.c_str(), ratio, allowed.c_str(),
                holds ? "ok" : "over");
    std::fflush(stdout);
}

}  // namespace bench
