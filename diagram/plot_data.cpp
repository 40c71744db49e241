#include "diagram/plot_data.h"

#include "core/number_text.h"

#include <algorithm>
#include <cmath>
#include <numeric>

int columnGap(int zoom)
{
    return static_cast<int>(std::nearbyint(5.0 / zoom * 10.0));
}

void rankSamples(PlotData& plot, const SheetTables& sheet, bool byDepth)
{
    const int samples = sheet.SampleCount;
    plot.DepthRank.resize(static_cast<std::size_t>(samples) + 1);
    std::iota(plot.DepthRank.begin(), plot.DepthRank.end(), 0);
    plot.RankSample = plot.DepthRank;
    if (!byDepth)
        return;

    std::vector<float> depth(static_cast<std::size_t>(samples) + 1);
    for (int sample = 1; sample <= samples; ++sample)
        depth[sample] = static_cast<float>(leadingNumber(sheet.SampleField(sample, 2)));
    std::vector<bool> used(depth.size());
    int pick = 0;
    for (int rank = 1; rank <= samples; ++rank) {
        float best = 999999.0F;
        for (int sample = 1; sample <= samples; ++sample)
            if (!used[sample] && depth[sample] < best) {
                best = depth[sample];
                pick = sample;
            }
        used[pick] = true;
        plot.DepthRank[pick] = rank;
        plot.RankSample[rank] = pick;
    }
}

void fillShares(PlotData& plot, const SheetTables& sheet,
                const std::array<std::int32_t, taxonSlots + 1>& weights)
{
    const int samples = sheet.SampleCount;
    std::vector<std::int64_t> sums(static_cast<std::size_t>(samples) + 1);
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int sample = 1; sample <= samples; ++sample)
            sums[sample] +=
                within32Bits(static_cast<std::int64_t>(sheet.Count(sample, slot)) * weights[slot]);
    for (int sample = 1; sample <= samples; ++sample) {
        sums[sample] = within32Bits(sums[sample]);
        plot.Share(plot.DepthRank[sample], 0) = sums[sample] == 0 ? 0.0F : 1.0F;
    }
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const int row = sheet.RowOfKeyIndex[slot];
        for (int sample = 1; sample <= samples; ++sample) {
            const auto total = static_cast<double>(sums[sample]);
            plot.Share(plot.DepthRank[sample], row) =
                total == 0 ? 0 : static_cast<float>(sheet.Count(sample, slot) / total);
        }
    }
}

void layOutColumns(PlotData& plot, const SheetTables& sheet)
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        plot.ColumnName[sheet.RowOfKeyIndex[slot]] = sheet.TaxonRecord[slot].Name;
    plot.ColumnLeft[1] = 5.0F;
    for (int column = 1; column <= taxonSlots; ++column) {
        float widest = 0;
        for (int rank = 1; rank <= sheet.SampleCount; ++rank)
            widest = std::max(widest, plot.Share(rank, column) * 100);
        plot.LastColumnWidth = widest;
        plot.ColumnLeft[column + 1] = widest + plot.ColumnLeft[column] + static_cast<float>(plot.ColumnGap);
    }
}

std::vector<float> rowPositions(const SheetTables& sheet, bool evenly)
{
    const int samples = sheet.SampleCount;
    std::vector<float> rows(static_cast<std::size_t>(samples) + 1);
    const double first = leadingNumber(sheet.SampleField(1, 0));
    const double last = leadingNumber(sheet.SampleField(samples, 0));
    for (int sample = 1; sample <= samples; ++sample) {
        const double depth = leadingNumber(sheet.SampleField(sample, 0));
        rows[sample] =
            evenly || first == last
                ? 10.0F * static_cast<float>(sample)
                : static_cast<float>(((last - depth) + (depth - first) * samples) * 10 / (last - first));
    }
    return rows;
}
