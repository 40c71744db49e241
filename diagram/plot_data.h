#pragma once

#include "core/sheet_tables.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// What a diagram of the sheet shows, and where. A unit of width is one percent of the basis.
struct PlotData {
    /// Share of the basis as a fraction, index (rank, row); row 0: 1 for a sample with a basis total, else 0.
    /// A table of its own: percentages that are looked at or saved meanwhile must not show in a figure.
    ShareTable Share;
    std::array<std::string, taxonSlots + 1> ColumnName; ///< taxon name of each column, 1 to 135, by file row
    std::array<float, taxonSlots + 2> ColumnLeft{}; ///< left edge of each column; 136: where the last ends
    float LastColumnWidth = 0;                      ///< of column 135: its largest share
    int ColumnGap = 10;                             ///< between columns
    std::vector<int> DepthRank;  ///< sample 1 to N -> its rank in the diagram; 0 holds nothing
    std::vector<int> RankSample; ///< the inverse
};

/// Gap between columns at a zoom of 1 to 10, wider the less is enlarged.
int columnGap(int zoom);

/// Ranks the samples by depth, the shallowest first, equal ones in the order of the sheet. Without
/// `byDepth` they keep that order. A depth of 999999 or more is never ranked: the one before it holds its
/// place again.
void rankSamples(PlotData& plot, const SheetTables& sheet, bool byDepth);

/// Fills the shares, the row by file row and the column by rank.
/// Counts are not weighted: a taxon outside the basis has a share too, which may pass 1.
void fillShares(PlotData& plot, const SheetTables& sheet,
                const std::array<std::int32_t, taxonSlots + 1>& weights);

/// Places the columns one after the other, each as wide as its largest share.
void layOutColumns(PlotData& plot, const SheetTables& sheet);

/// Vertical place of each sample's row, 1 to N: 10 for the first, 10 x N for the last, the others between
/// them by depth (row 0 of SampleField, in the order of the sheet), or in even steps if `evenly` is set or
/// first and last depth are equal. On purpose the depths are not sorted here as the shares are: in a sheet
/// out of depth order a row's place and its shares belong to different samples.
std::vector<float> rowPositions(const SheetTables& sheet, bool evenly);
