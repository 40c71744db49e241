#pragma once

#include "figure/plan_figure.h"

/// The sentence for the paper: basis, samples and taxa shown and left out, exaggeration, clusters, zones.
std::string figureCaption(const FigurePlan& plan, const FigureSettings& settings);

/// The clusters as tables that R reads. Samples are counted from the top, from 1.
std::string mergesTable(const FigureClusters& clusters);
std::string sticksTable(const FigureClusters& clusters);
/// The line of R that gives the same clusters; `x` is the table of counts. Empty for the unweighted variant.
std::string clusterLineOfR(const FigureSettings& settings);
