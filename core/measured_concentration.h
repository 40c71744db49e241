#pragma once

#include <array>
#include <optional>
#include <string>

/// How much of a sample's sums stands in one unit of sediment, by a marker. 0 all total, 1 and 2 the
/// subtotals.
struct MeasuredConcentration {
    struct Value {
        double value = 0;
        double lower = 0; ///< 95 % limits; upper is 0 where there are none
        double upper = 0;
        friend bool operator==(const Value&, const Value&) = default;
    };
    std::array<std::optional<Value>, 3> sums;
    std::string unit; ///< of the quantity, as it was typed, UTF-8: "ml"
    friend bool operator==(const MeasuredConcentration&, const MeasuredConcentration&) = default;
};
