#pragma once

#include "figure/clusters.h"
#include "figure/figure_layout.h"
#include "platform/page.h"

/// A figure planned: the page to show and to save, and what was computed for it.
struct FigureZone {
    std::string name;
    int firstSample = 0; ///< index in `samples`, from the top; zones by hand may hold none: first > last
    int lastSample = 0;
    double lowerLine = 0; ///< depth of the line below it; nothing below the last zone
    double top = 0;       ///< mm, from line to line
    double bottom = 0;
};

struct FigureClusters {
    std::vector<int> samples; ///< that have individuals in the basis, as indexes of the figure's samples
    std::vector<ClusterMerge> merges; ///< of these, by their index here
    std::vector<BrokenStick> sticks;  ///< none for the unweighted variant: its heights are no sums of squares
    bool unweighted = false;
};

struct FigurePlan {
    Page page;
    std::vector<std::string> faults; ///< why it cannot be printed as it is; empty: it can
    FigureData data;                 ///< the samples that it shows
    FigureShares shares;
    std::vector<ShownGroup> groups;
    FigureLayout layout;
    FigureClusters clusters;
    std::vector<FigureZone> zones; ///< from top to bottom; none if the core is not divided
};

/// The whole figure. Plain computing: the same settings, counts and letters give the same page.
FigurePlan planFigure(const FigureData& data, const FigureSettings& settings, const LetterWidths& widths);

/// Settings for the first view of a sheet: those by default, or, where they leave no room, a page of 240 x
/// 150 mm, with the least higher threshold that fits it.
FigureSettings firstSettings(const FigureData& data, const LetterWidths& widths);

/// What would make a figure with faults printable, as a sentence; empty if nothing was found.
std::string whatWouldFit(const FigureData& data, const FigureSettings& settings, const LetterWidths& widths);

/// The clusters of the samples of a figure.
FigureClusters figureClusters(const FigureData& data, const FigureShares& shares, Transform transform,
                              ClusterMethod method);

/// "Percent of all individuals": what the shares are shares of.
std::string basisSentence(const FigureData& data, FigureBasis basis);
/// "CONISS (Grimm 1987), square roots": what the clusters are.
std::string methodName(const FigureSettings& settings);
/// What zone names begin with: as set, or three letters of the sheet's name.
std::string zonePrefix(const FigureData& data, const FigureSettings& settings);
