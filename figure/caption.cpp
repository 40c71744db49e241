#include "figure/caption.h"

#include "core/fields.h"
#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

std::string counted(std::size_t number, const char* one, const char* many)
{
    return decimalText(static_cast<long long>(number)) + " " + (number == 1 ? one : many);
}

std::string taxaSentence(const FigurePlan& plan, const FigureSettings& settings)
{
    const std::size_t shown = plan.layout.columns.size();
    std::string text =
        counted(plan.data.samples.size(), "sample", "samples") + ", " + counted(shown, "taxon", "taxa");
    text += settings.taxa ? " chosen"
                          : " with at least " + plainDecimal(settings.threshold) + " % in " +
                                counted(static_cast<std::size_t>(settings.samples), "sample", "samples");
    const std::size_t left = plan.data.taxa.size() - shown;
    return text + (left == 0 ? "." : "; " + counted(left, "taxon is", "taxa are") + " not shown.");
}

std::string zonesSentence(const FigurePlan& plan, const FigureSettings& settings)
{
    if (plan.zones.empty())
        return "";
    std::string text = "Zones " + plan.zones.back().name + " to " + plan.zones.front().name;
    text += settings.zonesBy == ZonesBy::hand ? " were drawn by hand, with boundaries at "
                                              : " by the broken stick (Bennett 1996), with boundaries at ";
    for (std::size_t i = 0; i + 1 < plan.zones.size(); ++i)
        text += (i == 0                       ? ""
                 : i + 2 == plan.zones.size() ? " and "
                                              : ", ") +
                plainDecimal(plan.zones[i].lowerLine);
    return text + (plan.data.byDepth && !settings.depthUnit.empty() ? " " + settings.depthUnit + "." : ".");
}

/// Ten significant digits.
void significant(std::string& out, double number)
{
    std::array<char, 40> digits{};
    char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::general, 10)
            .ptr;
    out.append(digits.data(), end);
}

} // namespace

std::string figureCaption(const FigurePlan& plan, const FigureSettings& settings)
{
    const std::string name = settings.title.empty() ? plan.data.sheetName : settings.title;
    std::string text = name.empty() ? "" : name + ". ";
    text += basisSentence(plan.data, settings.basis) + ". " + taxaSentence(plan, settings);
    const bool exaggerated = settings.exaggeration > 1 &&
                             std::any_of(plan.layout.columns.begin(), plan.layout.columns.end(),
                                         [&](const auto& column) { return column.largest < settings.below; });
    if (exaggerated)
        text += " Grey: exaggerated " + plainDecimal(settings.exaggeration) +
                " times, taxa that stay below " + plainDecimal(settings.below) + " %.";
    if (settings.plus)
        text += " +: below 0.5 %.";
    if (settings.concentration > 0 && hasConcentrations(plan.data))
        text += " Concentrations: " + plan.data.totals[static_cast<std::size_t>(settings.basis)] +
                " by a marker, with 95 % limits (Stockmarr 1971, Maher 1981).";
    const bool clustered = settings.dendrogram > 0 || settings.zonesBy == ZonesBy::stick;
    if (clustered && !plan.clusters.merges.empty())
        text += " Clusters: " + methodName(settings) + ", of " +
                (settings.basis == FigureBasis::all
                     ? std::string("all taxa")
                     : "the taxa of " + plan.data.totals[static_cast<std::size_t>(settings.basis)]) +
                ".";
    const std::string zones = zonesSentence(plan, settings);
    return zones.empty() ? text : text + " " + zones;
}

std::string mergesTable(const FigureClusters& clusters)
{
    std::string out = "step,upper_first,upper_last,lower_first,lower_last,increase,total\r\n";
    int step = 0;
    for (const ClusterMerge& merge : clusters.merges) {
        out += decimalText(++step);
        for (const int index : {merge.upperFirst, merge.upperLast, merge.lowerFirst, merge.lowerLast})
            out += "," + decimalText(clusters.samples[index] + 1);
        for (const double number : {merge.increase, merge.total})
            significant(out += ',', number);
        out += "\r\n";
    }
    return out;
}

std::string sticksTable(const FigureClusters& clusters)
{
    std::string out = "zones,dispersion,stick,above\r\n";
    for (const BrokenStick& line : clusters.sticks) {
        out += decimalText(line.zones);
        for (const double number : {line.dispersion, line.stick})
            significant(out += ',', number);
        out += line.above ? ",1\r\n" : ",0\r\n";
    }
    return out;
}

std::string clusterLineOfR(const FigureSettings& settings)
{
    if (settings.method == ClusterMethod::unweighted)
        return "";
    return settings.transform == Transform::sqrt ? "rioja::chclust(dist(sqrt(x / rowSums(x)))^2)"
                                                 : "rioja::chclust(dist(x / rowSums(x))^2)";
}
