#pragma once

#include <string>
#include <vector>

/// Numbers that axes are labelled with.

/// The least step of 1, 2 or 5 times a power of ten that gives at most `most` labels from `first` to `last`.
double labelStep(double first, double last, int most);
/// The whole multiples of `step` from `first` to `last`, both included.
std::vector<double> labelValues(double first, double last, double step);
/// A number with as many decimals as its step has, with a true minus sign.
std::string labelText(double value, double step);
/// The least of 1, 1.5, 2, 2.5, 3, 4, 5, 6, 7, 8 times a power of ten that is not below `value`.
double roundEnd(double value);
