#pragma once

#include <algorithm>
#include <cstdio>
#include <vector>

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Prints a figure beside its limit. bench/run looks for lines of this form.
inline void report(const char* what, double value, const char* unit, double limit)
{
    std::printf("%s: %.2f %s (limit %g)\n", what, value, unit, limit);
    std::fflush(stdout);
}
