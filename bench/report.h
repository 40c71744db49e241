#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The time under which 99 of 100 stay.
inline double p99(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() * 99 / 100];
}

template <class Work>
double milliseconds(Work&& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

/// Prints a figure beside its limit. bench/run looks for lines of this form.
inline void report(const char* what, double value, const char* unit, double limit)
{
    std::printf("%s: %.2f %s (limit %g)\n", what, value, unit, limit);
    std::fflush(stdout);
}

/// The same for a time, as a multiple of that of a piece of work that was timed in turn with it: a limit that
/// holds on any machine. The time itself, in milliseconds, is for information.
inline void report(const char* what, double took, double yardstick, double limit)
{
    if (took < 0.1)
        std::printf("%s: %.2f times (limit %g), %.2f us\n", what, took / yardstick, limit, took * 1e3);
    else
        std::printf("%s: %.2f times (limit %g), %.2f ms\n", what, took / yardstick, limit, took);
    std::fflush(stdout);
}
