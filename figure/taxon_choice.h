#pragma once

#include "figure/figure_data.h"
#include "figure/figure_settings.h"

/// Shares of the basis, and which taxa a figure shows in which order.

/// Percentages, index [taxon][sample] as in FigureData.
struct FigureShares {
    std::vector<double> sums;  ///< individuals of the basis in each sample
    std::vector<bool> inBasis; ///< of each taxon
    std::vector<std::vector<double>>
        percent;                 ///< 100 x / sum; 0 where the sum is 0. Beyond 100 outside the basis
    std::vector<double> largest; ///< of each taxon

    bool has(std::size_t sample) const { return sums[sample] > 0; }
};
FigureShares figureShares(const FigureData& data, FigureBasis basis);

struct ShownGroup {
    std::string name;
    Colour colour;
    std::vector<int> taxa; ///< indexes in FigureData, in the order of the sheet
};
/// The groups that hold a taxon of the sheet, in their order. Every taxon is in one of them.
std::vector<ShownGroup> figureGroups(const FigureData& data, const std::vector<FigureGroup>& groups);

struct ShownTaxon {
    int taxon = 0; ///< index in FigureData
    int group = 0; ///< index in figureGroups()
};
/// The taxa that a figure shows, from left to right.
std::vector<ShownTaxon> shownTaxa(const FigureData& data, const FigureShares& shares,
                                  const std::vector<ShownGroup>& groups, const FigureSettings& settings);

/// True if each group's taxa stand together, so that a heading can span them, and there is more than one
/// group.
bool groupsStandTogether(const std::vector<ShownTaxon>& taxa);

/// The samples from `from` to `to` alone.
FigureData samplesBetween(const FigureData& data, std::optional<double> from, std::optional<double> to);
