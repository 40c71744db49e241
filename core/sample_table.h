#pragma once

#include "core/sheet_size.h"

#include <cstddef>
#include <vector>

/// A table with one column for each sample, 0 to 255; its rows lie behind one another.
template <class Element, int Rows>
class SampleTable {
public:
    Element& operator()(int sample, int row)
    {
        return elements_[static_cast<std::size_t>(row) * sampleColumns + static_cast<std::size_t>(sample)];
    }
    const Element& operator()(int sample, int row) const
    {
        return elements_[static_cast<std::size_t>(row) * sampleColumns + static_cast<std::size_t>(sample)];
    }
    friend bool operator==(const SampleTable&, const SampleTable&) = default;

private:
    std::vector<Element> elements_ = std::vector<Element>(static_cast<std::size_t>(Rows) * sampleColumns);
};

template <class Element, int Rows>
void clearColumn(SampleTable<Element, Rows>& table, int sample)
{
    for (int row = 0; row < Rows; ++row)
        table(sample, row) = Element();
}
