#pragma once

#include "bench/report.h"
#include "core/number_text.h"
#include "core/sheet_size.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <vector>

// Pieces of plain work to which the program's own is compared.

/// Parses the texts of one sample's 135 counts and sums them.
class SampleSum {
public:
    SampleSum()
    {
        for (int slot = 1; slot <= taxonSlots; ++slot)
            texts_.push_back(decimalText(slot * 37 % 1000));
    }
    std::int64_t operator()() const
    {
        std::int64_t sum = 0;
        for (const std::string& text : texts_) {
            int count = 0;
            std::from_chars(text.data(), text.data() + text.size(), count);
            sum += count;
        }
        return sum;
    }

private:
    std::vector<std::string> texts_;
};

/// The same for the fullest sheet: 250 samples. Milliseconds.
inline double sheetSumMilliseconds()
{
    static const SampleSum sum;
    static volatile std::int64_t kept = 0;
    return milliseconds([] {
        for (int sample = 0; sample < sampleLimit; ++sample)
            kept = kept + sum();
    });
}
