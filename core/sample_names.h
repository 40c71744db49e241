#pragma once

#include <string_view>

/// True for a depth that a sample may be named by: a number in its plain decimal writing, perhaps with up to
/// six zeros or a point and up to six zeros behind it ("10", "12.50", "12.0"; not "012", ".5" or "12 cm").
bool isDepth(std::string_view name);

/// Sets NamesNotNumeric: at least one sample's name is no depth, so the samples keep the order of the sheet.
void TestSampleNames();
