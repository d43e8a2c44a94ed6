#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

class DataTable;

/// The median, because other work on the computer disturbs only single runs.
inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The duration of `work` in seconds.
template<typename Work>
double secondsOf(Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// How often to run `work` for a duration that the clock can measure: a millisecond.
template<typename Work>
int timesForClock(Work&& work) {
    constexpr double enough = 1e-3;
    return 1 + static_cast<int>(enough / secondsOf(work));
}

/// The mean duration of `times` runs, in seconds.
template<typename Work>
double secondsOfOne(int times, Work&& work) {
    return secondsOf([&] {
               for (int done = 0; done < times; ++done) work();
           }) /
           times;
}

/// The median duration of `runs` runs, in seconds.
template<typename Work>
double medianSeconds(int runs, Work&& work) {
    const int times = timesForClock(work);
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) seconds.push_back(secondsOfOne(times, work));
    return median(seconds);
}

/// Median durations in seconds of a work and its baseline. Both run by turns, so that other work on the
/// computer disturbs them alike. Short ones run more often.
struct Pair {
    double own;
    double baseline;
};
template<typename Own, typename Baseline>
Pair byTurns(int runs, Own&& own, Baseline&& baseline) {
    std::vector<double> ours;
    std::vector<double> baselines;
    const int ownTimes = timesForClock(own);
    const int baselineTimes = timesForClock(baseline);
    constexpr double enough = 0.3;
    for (double spent = 0; spent < enough || static_cast<int>(ours.size()) < runs;) {
        spent += secondsOf([&] {
            baselines.push_back(secondsOfOne(baselineTimes, baseline));
            ours.push_back(secondsOfOne(ownTimes, own));
        });
    }
    return {median(ours), median(baselines)};
}

/// Prints a row of the table: the work, its time, its baseline, their ratio, the greatest ratio wanted, and
/// the memory of the process.
void printRow(const char* work, Pair seconds, const char* baseline, double wanted);
constexpr int mostBytesARow = 250; ///< in a grid of catches
/// Clears a grid and prints what that frees. `most` is the limit of bytes in each row, 0 for none.
void printGrid(DataTable& grid, int most = 0);
