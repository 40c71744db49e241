#pragma once

#include "statistics/limits.h"

#include <optional>

/// How much there is in a volume or weight of sediment, from a known number of marker grains added to it
/// (Benninghoff 1962; Stockmarr 1971, Pollen et Spores 13: 615-621).

/// What was put together in the laboratory, and for influx how fast the sediment grew.
struct Preparation {
    double tablets = 0;    ///< marker tablets added
    double tabletMean = 0; ///< marker grains a tablet
    double tabletSd = 0;   ///< its standard deviation, of one tablet
    double quantity = 0;   ///< volume or weight of the sample
    double quantitySd = 0;
};

struct Concentration {
    double value = 0;             ///< individuals in one unit of the quantity
    double standardError = 0;     ///< Stockmarr (1971); 0 for a taxon that was not seen
    double relativeError = 0;     ///< standardError / value
    std::optional<Limits> limits; ///< 95 %, after Maher (1981), Rev. Palaeobot. Palynol. 32: 153-191
};

constexpr double leastMarkers = 4;    ///< below it there are no limits
constexpr double advisedMarkers = 20; ///< below it they are wide

/// x: individuals counted; y: markers counted. Nothing without markers, tablets or quantity, or if a number
/// is negative. The limits join the error of the count, those of a ratio to a sum of y, with the errors of
/// tablets and quantity on a logarithmic scale; none if x is 0 or y is below leastMarkers.
std::optional<Concentration> concentrationOf(double x, double y, const Preparation& made);

/// The same times an accumulation rate. `rate`: depth a year, with its standard deviation.
struct Accumulation {
    double rate = 0;
    double sd = 0;
};
std::optional<Concentration> influxOf(double x, double y, const Preparation& made, Accumulation growth);

/// Markers to count until the relative standard error of the concentration is `relativeError`, if individuals
/// keep coming x to y. Not rounded. Nothing if no count can reach it, because the errors of tablets and
/// quantity are larger, or if there is nothing to go by.
std::optional<double> markersNeeded(double x, double y, const Preparation& made, double relativeError);
