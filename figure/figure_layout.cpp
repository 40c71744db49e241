#include "figure/figure_layout.h"

#include "figure/name_runs.h"
#include "platform/page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

/// Height of a turned name above the foot of its first letter.
double nameHeight(const std::vector<TextRun>& runs, const FigureSettings& settings,
                  const LetterWidths& widths)
{
    double width = 0;
    for (const TextRun& run : runs)
        width += widths(run.text, run.italic);
    const double size = settings.namePoints * millimetresPerPoint;
    constexpr double capitals = 0.75; // height of the letters
    return size *
           (width * std::sin(radians(settings.nameAngle)) + capitals * std::cos(radians(settings.nameAngle)));
}

double tallestName(const FigureData& data, const std::vector<ShownTaxon>& taxa,
                   const FigureSettings& settings, const LetterWidths& widths)
{
    double tallest = 0;
    for (const ShownTaxon& shown : taxa) {
        const std::string& name = data.taxa[shown.taxon].name;
        tallest = std::max(tallest, nameHeight(nameRuns(name, slantOf(settings, name)), settings, widths));
    }
    for (const PanelKind& panel : panelKinds(settings))
        if (settings.*panel.width > 0)
            tallest = std::max(tallest, nameHeight({{panel.name, false}}, settings, widths));
    constexpr double aboveFrame = 1.5;
    return tallest + aboveFrame;
}

/// Columns that would be too narrow for their names get the least width; the others share what is left by
/// what they reach.
void shareWidth(FigureLayout& layout, const FigureSettings& settings, double free)
{
    const double size = settings.namePoints * millimetresPerPoint;
    const double least = std::max(0.0, 1.15 * size / std::sin(radians(settings.nameAngle)) - settings.gap);
    std::vector<bool> narrow(layout.columns.size());
    double& scale = layout.mmPerPercent;
    for (bool changed = true; changed;) {
        double room = free;
        double reach = 0;
        for (std::size_t i = 0; i < narrow.size(); ++i)
            narrow[i] ? room -= least : reach += layout.columns[i].reach;
        if (reach > 0)
            scale = room / reach;
        else if (room < 0)
            scale = 0;
        changed = false;
        for (std::size_t i = 0; i < narrow.size(); ++i)
            if (!narrow[i] && layout.columns[i].reach * scale < least)
                narrow[i] = changed = true;
    }
    for (std::size_t i = 0; i < narrow.size(); ++i)
        layout.columns[i].width = narrow[i] ? least : layout.columns[i].reach * scale;
}

void placeColumns(FigureLayout& layout, const FigureSettings& settings)
{
    constexpr std::array<double, 6> steps = {5, 10, 20, 25, 50, 100};
    const double scale = layout.mmPerPercent;
    const auto step =
        std::find_if(steps.begin(), steps.end(), [&](double l) { return l * scale >= settings.labelRoom; });
    const double labels = step == steps.end() ? steps.back() : *step;
    double x = layout.plotRight = layout.plotLeft;
    for (FigureColumn& column : layout.columns) {
        column.left = x;
        column.labelStep = std::min(labels, column.reach);
        layout.plotRight = x + column.width;
        x += column.width + settings.gap;
    }
    for (const PanelKind& panel : panelKinds(settings)) {
        const double width = settings.*panel.width;
        if (width <= 0)
            continue;
        x += settings.panelGap;
        layout.*panel.place = {x, width};
        x += width;
        layout.plotRight = x;
    }
}

void placeSamples(FigureLayout& layout, const FigureData& data, const FigureSettings& settings)
{
    if (data.samples.empty())
        return;
    layout.firstDepth = data.samples.front().depth;
    layout.lastDepth = data.samples.back().depth;
    if (data.byDepth) {
        layout.firstDepth = settings.depthFrom.value_or(layout.firstDepth);
        layout.lastDepth = settings.depthTo.value_or(layout.lastDepth);
    }
    for (const FigureSample& sample : data.samples)
        layout.y.push_back(layout.yOf(sample.depth));
}

} // namespace

std::array<PanelKind, 5> panelKinds(const FigureSettings& settings)
{
    using L = FigureLayout;
    using S = FigureSettings;
    return {{{&L::cumulative, &S::cumulative, "cumulative", "Sum of groups"},
             {&L::total, &S::total, "total", "Individuals"},
             {&L::concentration, &S::concentration, "concentration", "Concentration"},
             {&L::zones, &S::zones, "zones", "Zone"},
             {&L::dendrogram, &S::dendrogram, "dendrogram",
              settings.method == ClusterMethod::grimm ? "CONISS" : "Unweighted CONISS"}}};
}

double FigureLayout::yOf(double depth) const
{
    const double height = plotBottom - plotTop - 2 * pad;
    if (lastDepth == firstDepth)
        return plotTop + pad + height / 2;
    return plotTop + pad + (depth - firstDepth) / (lastDepth - firstDepth) * height;
}

double depthAxisWidth(const FigureData& data, const FigureSettings& settings)
{
    constexpr double forNames = 24;
    return data.byDepth ? settings.axis : std::max(settings.axis, forNames);
}

NameSlant slantOf(const FigureSettings& settings, const std::string& taxon)
{
    const auto own = std::find_if(settings.slants.begin(), settings.slants.end(),
                                  [&](const auto& entry) { return entry.first == taxon; });
    return own == settings.slants.end() ? settings.slant : own->second;
}

FigureLayout layOutFigure(const FigureData& data, const FigureShares& shares,
                          const std::vector<ShownTaxon>& taxa, const FigureSettings& settings,
                          double headings, const LetterWidths& widths)
{
    FigureLayout layout;
    constexpr double forTitle = 6;
    layout.titleHeight = settings.title.empty() ? 0 : forTitle;
    layout.headingHeight = headings;
    layout.neededHeader = layout.titleHeight + headings + tallestName(data, taxa, settings, widths);
    layout.header = settings.header.value_or(layout.neededHeader);
    layout.pad = settings.pad;
    layout.axisLeft = settings.left + (settings.ages.empty() || !data.byDepth ? 0 : settings.axis2);
    layout.plotLeft = layout.axisLeft + depthAxisWidth(data, settings);
    layout.plotTop = settings.top + layout.header;
    layout.plotBottom = settings.height - settings.bottom;
    for (const ShownTaxon& shown : taxa) {
        FigureColumn column;
        column.shown = shown;
        column.largest = shares.largest[shown.taxon];
        column.reach =
            std::max(settings.minPercent, settings.step * std::ceil(column.largest / settings.step - 1e-9));
        layout.columns.push_back(column);
    }
    double free =
        settings.width - settings.right - layout.plotLeft - settings.gap * static_cast<double>(taxa.size());
    for (const PanelKind& panel : panelKinds(settings))
        if (settings.*panel.width > 0)
            free -= settings.*panel.width + settings.panelGap;
    shareWidth(layout, settings, free);
    if (!taxa.empty() && layout.mmPerPercent <= leastScale)
        return layout;
    placeColumns(layout, settings);
    placeSamples(layout, data, settings);
    return layout;
}
