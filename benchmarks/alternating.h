// Measures each act beside its floor, the least work that anyone could do for it, and prints one table of both.
#pragma once

#include <functional>
#include <string>

namespace bench {

using Seconds = double;

// One run; returns what it took, without what it needs before and after.
using Run = std::function<Seconds()>;

// How long `work` takes, divided by `times` where it repeats a short act.
Seconds timed(const std::function<void()>& work, int times = 1);

constexpr int usual_runs = 9;  // odd, so that the median is a run

// Median of `runs`, after one that does not count.
Seconds median_time(const Run& run, int runs = usual_runs);
std::string in_words(Seconds time);

class Table {
public:
    // Rows are measured only where their name holds `filter`; an empty one takes all.
    explicit Table(std::string filter);

    bool wants(const std::string& act) const { return act.find(filter_) != std::string::npos; }

    // Median of runs that alternate between the act and its floor, after one run of each that does not count.
    // `allowed` is the most that the act may take as a multiple of its floor.
    void compare(const std::string& act, double allowed, const Run& figure, const Run& floor, int runs = usual_runs);
    // A row whose peer is not on this machine.
    void leave_out(const std::string& act, const std::string& why);
    // A quantity with a fixed limit.
    void limit(const std::string& what, double figure, double allowed, const std::string& unit);

private:
    void begin();
    void print(const std::string& act, const std::string& figure, const std::string& floor, double ratio,
               const std::string& allowed, bool holds);

    std::string filter_;
    bool begun_ = false;
};

}  // namespace bench
