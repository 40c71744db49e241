#pragma once

#include <cstddef>
#include <vector>

constexpr int taxonSlots = 135;    ///< slots 1 to 135; slot 0 holds headers or totals, never a taxon
constexpr int keysPerLayer = 45;   ///< slot = key number + 45 x layer
constexpr int sampleLimit = 250;   ///< most samples in a sheet
constexpr int sampleColumns = 256; ///< columns that the tables have room for, 0 to 255
constexpr int infoItems = 6;       ///< additional info items of a sample, 1 to 6

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
