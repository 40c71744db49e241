#include "figure/plan_figure.h"

#include "core/number_text.h"
#include "diagram/coniss.h"
#include "figure/axis_labels.h"
#include "figure/caption.h"
#include "figure/scene.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace {

/// The clusters of the diagram window, with the samples that each merge joins.
std::vector<ClusterMerge> unweightedMerges(const std::vector<std::vector<double>>& fractions)
{
    struct Cluster {
        int first;
        int last;
        float place;
        double height;
    };
    std::vector<Cluster> clusters;
    Profiles profiles(1);
    std::vector<float> places(1);
    for (const std::vector<double>& fraction : fractions) {
        const int sample = static_cast<int>(clusters.size());
        profiles.emplace_back(fraction.begin(), fraction.end());
        places.push_back(static_cast<float>(sample));
        clusters.push_back({sample, sample, places.back(), 0});
    }
    const MergeTable table = clusterSamples(std::move(profiles), std::move(places));
    std::vector<ClusterMerge> merges;
    for (int merge = 1; merge <= table.merges(); ++merge) {
        const auto upper = std::find_if(clusters.begin(), clusters.end(), [&](const Cluster& cluster) {
            return cluster.place == table.MergeFrom[merge];
        });
        const auto lower = upper + 1;
        const auto height = static_cast<double>(table.MergeSumSquare[merge]);
        merges.push_back({upper->first, upper->last, lower->first, lower->last,
                          height - upper->height - lower->height, height});
        *upper = {upper->first, lower->last, (upper->place + lower->place) / 2, height};
        clusters.erase(lower);
    }
    return merges;
}

/// Depths of the zones' lines, from top to bottom: half-way between two samples, or by hand.
std::vector<double> zoneLines(const FigurePlan& plan, const FigureSettings& settings)
{
    std::vector<double> lines;
    const auto& samples = plan.data.samples;
    if (settings.zonesBy == ZonesBy::stick)
        for (const int above : highestBoundaries(plan.clusters.merges, zonesByStick(plan.clusters.sticks))) {
            const double upper = samples[plan.clusters.samples[above]].depth;
            const double lower = samples[plan.clusters.samples[above + 1]].depth;
            lines.push_back((upper + lower) / 2);
        }
    if (settings.zonesBy == ZonesBy::hand)
        for (const double cut : settings.cuts)
            if (cut > plan.layout.firstDepth && cut < plan.layout.lastDepth)
                lines.push_back(cut);
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

void findZones(FigurePlan& plan, const FigureSettings& settings)
{
    const std::vector<double> lines = zoneLines(plan, settings);
    if (lines.empty())
        return;
    const std::string prefix = zonePrefix(plan.data, settings);
    const std::size_t zones = lines.size() + 1;
    int sample = 0;
    for (std::size_t i = 0; i < zones; ++i) {
        FigureZone zone;
        const std::size_t fromBottom = zones - i; // 1 is the lowest
        const bool named =
            fromBottom <= settings.zoneNames.size() && !settings.zoneNames[fromBottom - 1].empty();
        zone.name = named ? settings.zoneNames[fromBottom - 1]
                          : prefix + "-" + decimalText(static_cast<long long>(fromBottom));
        zone.top = i == 0 ? plan.layout.plotTop : plan.zones.back().bottom;
        zone.bottom = plan.layout.plotBottom;
        if (i < lines.size()) {
            zone.lowerLine = lines[i];
            zone.bottom = plan.layout.yOf(lines[i]);
        }
        zone.firstSample = sample;
        while (sample < static_cast<int>(plan.data.samples.size()) &&
               (i == lines.size() || plan.data.samples[sample].depth <= lines[i]))
            ++sample;
        zone.lastSample = sample - 1;
        plan.zones.push_back(std::move(zone));
    }
}

/// Panels that would stand empty are left out.
FigureSettings withoutEmptyPanels(FigureSettings settings, const FigurePlan& plan)
{
    if (settings.zonesBy == ZonesBy::none)
        settings.zones = 0;
    if (plan.clusters.merges.empty())
        settings.dendrogram = 0;
    if (!hasConcentrations(plan.data))
        settings.concentration = 0;
    return settings;
}

/// Why there is nothing to draw; empty if there is.
std::string nothingToDraw(const FigurePlan& plan, const std::vector<ShownTaxon>& taxa,
                          const FigureSettings& settings)
{
    if (plan.data.samples.empty())
        return "No sample lies within the limits of the depth axis.";
    if (std::none_of(plan.shares.sums.begin(), plan.shares.sums.end(), [](double sum) { return sum > 0; }))
        return "No sample has individuals in the basis.";
    if (taxa.empty() && settings.taxa)
        return "No taxon is ticked.";
    if (taxa.empty())
        return "No taxon reaches " + plainDecimal(settings.threshold) + " % in " +
               decimalText(settings.samples) + (settings.samples == 1 ? " sample" : " samples") +
               ": the largest share is " +
               labelText(*std::max_element(plan.shares.largest.begin(), plan.shares.largest.end()), 0.1) +
               " %.";
    if (settings.depthFrom && settings.depthTo && *settings.depthFrom >= *settings.depthTo)
        return "The depth axis must end below its beginning.";
    return "";
}

void layOut(FigurePlan& plan, const std::vector<ShownTaxon>& taxa, const FigureSettings& settings,
            const LetterWidths& widths)
{
    plan.layout = layOutFigure(plan.data, plan.shares, taxa, settings, 0, widths);
    const double headings = headingsHeight(Scene(plan, settings, widths));
    plan.layout = layOutFigure(plan.data, plan.shares, taxa, settings, headings, widths);
    const FigureLayout& layout = plan.layout;
    if (layout.mmPerPercent <= leastScale) {
        plan.faults.push_back(decimalText(static_cast<long long>(taxa.size())) +
                              " taxa are too many for a page " + plainDecimal(settings.width) + " mm wide.");
        return;
    }
    constexpr double leastHeight = 15;
    if (layout.plotBottom - layout.plotTop - 2 * layout.pad < leastHeight)
        plan.faults.push_back("The page is too low: " + plainDecimal(leastHeight) +
                              " mm must be left for the columns.");
    if (layout.header < layout.neededHeader - 0.005)
        plan.faults.push_back("Headings and names need a header of " +
                              labelText(std::ceil(layout.neededHeader * 10) / 10, 0.1) + " mm.");
}

} // namespace

FigureClusters figureClusters(const FigureData& data, const FigureShares& shares, Transform transform,
                              ClusterMethod method)
{
    FigureClusters clusters;
    clusters.unweighted = method == ClusterMethod::unweighted;
    std::vector<std::vector<double>> profiles;
    for (int sample = 0; sample < static_cast<int>(data.samples.size()); ++sample) {
        if (!shares.has(sample)) // without individuals it is like no other and unlike none
            continue;
        clusters.samples.push_back(sample);
        std::vector<double>& profile = profiles.emplace_back();
        for (std::size_t taxon = 0; taxon < data.taxa.size(); ++taxon) {
            if (!shares.inBasis[taxon])
                continue;
            const double fraction = data.taxa[taxon].counts[sample] / shares.sums[sample];
            profile.push_back(transform == Transform::sqrt && !clusters.unweighted ? std::sqrt(fraction)
                                                                                   : fraction);
        }
    }
    if (profiles.size() < 2)
        return clusters;
    clusters.merges = clusters.unweighted ? unweightedMerges(profiles) : clusterByGrimm(profiles);
    if (!clusters.unweighted)
        clusters.sticks = brokenStick(clusters.merges);
    return clusters;
}

std::string basisSentence(const FigureData& data, FigureBasis basis)
{
    return "Percent of " + data.totals[static_cast<std::size_t>(basis)];
}

std::string methodName(const FigureSettings& settings)
{
    if (settings.method == ClusterMethod::unweighted)
        return "unweighted variant of CONISS, untransformed";
    return std::string("CONISS (Grimm 1987), ") +
           (settings.transform == Transform::sqrt ? "square roots" : "untransformed");
}

std::string zonePrefix(const FigureData& data, const FigureSettings& settings)
{
    if (settings.prefix)
        return *settings.prefix;
    std::string prefix;
    for (const char letter : data.sheetName)
        if (prefix.size() < 3 && std::isalpha(static_cast<unsigned char>(letter)) != 0)
            prefix += static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return prefix.empty() ? "Z" : prefix;
}

FigurePlan planFigure(const FigureData& data, const FigureSettings& chosen, const LetterWidths& widths)
{
    FigurePlan plan;
    plan.data = samplesBetween(data, chosen.depthFrom, chosen.depthTo);
    plan.page.width = chosen.width;
    plan.page.height = chosen.height;
    plan.page.title = chosen.title.empty() ? data.sheetName : chosen.title;
    plan.shares = figureShares(plan.data, chosen.basis);
    plan.groups = figureGroups(plan.data, chosen.groups);
    const std::vector<ShownTaxon> taxa = shownTaxa(plan.data, plan.shares, plan.groups, chosen);
    if (const std::string why = nothingToDraw(plan, taxa, chosen); !why.empty()) {
        plan.faults.push_back(why);
        return plan;
    }
    plan.clusters = figureClusters(plan.data, plan.shares, chosen.transform, chosen.method);
    const FigureSettings settings = withoutEmptyPanels(chosen, plan);
    layOut(plan, taxa, settings, widths);
    if (!plan.faults.empty() && plan.layout.y.empty())
        return plan;
    if (settings.zonesBy == ZonesBy::stick && plan.clusters.unweighted)
        plan.faults.push_back("The broken stick needs Grimm's clusters; zones by hand do not.");
    findZones(plan, settings);

    Scene scene(plan, settings, widths);
    planHeadings(scene);
    planAxes(scene);
    planColumns(scene);
    planPanels(scene);
    planZoneLines(scene);
    planFoot(scene);
    findFaults(scene);
    plan.page.description = figureCaption(plan, settings);
    return plan;
}

constexpr std::array<double, 10> thresholds = {1, 2, 3, 4, 5, 7, 10, 15, 20, 30}; // percent

FigureSettings firstSettings(const FigureData& data, const LetterWidths& widths)
{
    const FigureSettings usual;
    const auto hasRoom = [&](const FigureSettings& settings) {
        const FigurePlan plan = planFigure(data, settings, widths);
        return plan.faults.empty() || plan.layout.columns.empty(); // or nothing to draw
    };
    if (hasRoom(usual))
        return usual;
    FigureSettings wide = usual;
    wide.width = 240;
    wide.height = 150;
    for (const double threshold : thresholds) {
        wide.threshold = std::max(usual.threshold, threshold);
        if (hasRoom(wide))
            return wide;
    }
    return usual;
}

std::string whatWouldFit(const FigureData& data, const FigureSettings& settings, const LetterWidths& widths)
{
    const auto fits = [&](const FigureSettings& other) {
        return planFigure(data, other, widths).faults.empty();
    };
    std::vector<std::string> found;
    if (settings.header) {
        FigureSettings other = settings;
        other.header.reset();
        if (fits(other))
            found.push_back("a header that is computed");
    }
    if (!settings.taxa)
        for (const double threshold : thresholds) {
            FigureSettings other = settings;
            other.threshold = threshold;
            if (threshold > settings.threshold && fits(other)) {
                found.push_back("a threshold of " + plainDecimal(threshold) + " %");
                break;
            }
        }
    const auto larger = [&](double FigureSettings::*member, double most, const char* words) {
        FigureSettings other = settings;
        for (double factor = 1.1; settings.*member * factor < most; factor *= 1.15) {
            other.*member = std::ceil(settings.*member * factor / 5) * 5;
            if (!fits(other))
                continue;
            found.push_back(words + plainDecimal(other.*member) + " mm");
            return;
        }
    };
    if (settings.zones > 0)
        larger(&FigureSettings::zones, 60, "a room for names of zones of ");
    if (found.empty())
        larger(&FigureSettings::right, 40, "a right margin of ");
    larger(&FigureSettings::width, 1200, "a width of ");
    if (found.empty())
        larger(&FigureSettings::height, 1200, "a height of ");
    if (found.empty())
        return "";
    std::string sentence = found[0];
    for (std::size_t i = 1; i < found.size(); ++i)
        sentence += ", or " + found[i];
    sentence[0] = 'A';
    return sentence + " would fit.";
}
