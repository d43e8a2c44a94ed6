#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

/// Median time of several runs, in seconds. The median, because a machine that does something else now and
/// then disturbs single runs only.
template<typename Work>
double medianSeconds(int runs, Work&& work) {
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    std::nth_element(seconds.begin(), seconds.begin() + runs / 2, seconds.end());
    return seconds[static_cast<std::size_t>(runs / 2)];
}

/// A line of the table: the work, its time, the floor it is held against, their ratio and the ratio wanted.
inline void printRow(const char* work, double seconds, const char* floor, double floorSeconds,
                     double wanted) {
    const double ratio = seconds / floorSeconds;
    std::printf("%-44s %10.3f ms   floor: %-36s %10.3f ms   ratio %5.2f (at most %.2f)%s\n", work,
                seconds * 1e3, floor, floorSeconds * 1e3, ratio, wanted,
                ratio <= wanted ? "" : "   <- MISSED");
}
