#pragma once

#include "core/measured_concentration.h"
#include "tables/exported_taxa.h"

#include <optional>
#include <string>
#include <vector>

/// What a concentration is of: a taxon or a sum.
struct Counted {
    std::string name;
    double x = 0;
};

/// In a sample of the open sheet: the three sums without the marker, then `taxa` in their order without it.
/// `marker`: its slot.
std::vector<Counted> countedIn(int sample, const std::vector<ExportedTaxon>& taxa, int marker);

/// The concentrations of the sums in a sample of the open sheet; nothing if there is no marker, if tablets or
/// quantity are not known, or while a recount hides its sums.
std::optional<MeasuredConcentration> concentrationOfSums(int sample);
