#pragma once

#include "statistics/basis_counts.h"

#include <string>
#include <vector>

/// The pages of frmStatistics: each fills its table and texts from the sheet, and writes its table as a file.

/// The counts of a sample against the % basis in force, without the marker.
BasisCounts countsOf(int sample);
/// The samples that the pages tell of: the one on show or all. One whose sums are hidden is left out.
std::vector<int> samplesInView();

void fillRichness();
/// The picture of page "Richness", at the size that it has on the screen.
void plotRarefaction();
void fillLimits();
void fillComparison();
void fillConcentration();

/// The tables as files, in the code page. docs/data-formats.md tells them column by column.
std::string richnessCsv();
std::string limitsCsv();
std::string comparisonCsv();
std::string concentrationCsv();
