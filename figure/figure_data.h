#pragma once

#include "core/measured_concentration.h"
#include "core/sheet_tables.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// What figures and clusters are made from: the sheet's counts, without anything that only the screen needs,
/// and without recounts.

struct FigureSample {
    std::string name; ///< UTF-8
    double depth = 0; ///< if FigureData::byDepth; else its place in the sheet, from 1
    int column = 0;   ///< in the sheet, from 1
    std::optional<MeasuredConcentration> concentration = {}; ///< if it is known; not read from the sheet
    friend bool operator==(const FigureSample&, const FigureSample&) = default;
};

struct FigureTaxon {
    std::string
        name; ///< UTF-8, unique: "Unnamed 17" for a row without one, " (2)" behind a name that repeats
    bool inSubtotal1 = false;
    bool inSubtotal2 = false;
    std::vector<double> counts; ///< of each sample, in the order of `samples`
    friend bool operator==(const FigureTaxon&, const FigureTaxon&) = default;
};

struct FigureData {
    bool byDepth = false;              ///< all names are depths, and not all the same one
    std::vector<FigureSample> samples; ///< by depth, the shallowest first, equal ones as in the sheet
    std::vector<FigureTaxon> taxa;     ///< that have a count somewhere, in the order of the sheet's rows
    std::array<std::string, 3> totals; ///< names of the basis: "all individuals" and the two subtotals
    std::string sheetName;             ///< of the file; empty: it has none yet
    friend bool operator==(const FigureData&, const FigureData&) = default;
};

/// True if the concentration of a sample is known.
bool hasConcentrations(const FigureData& data);

/// `path`: of the sheet's file.
FigureData figureData(const SheetTables& sheet, const std::string& path);
