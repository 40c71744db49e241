// The panels right of the taxa: sum of groups, sums of individuals, zones, dendrogram; and the zone lines.

#include "figure/axis_labels.h"
#include "figure/scene.h"

#include <algorithm>

namespace {

/// Percent of the basis up to the end of each group, index [group][sample].
std::vector<std::vector<double>> stackedGroups(const FigurePlan& plan)
{
    std::vector<double> sum(plan.data.samples.size());
    std::vector<std::vector<double>> stacked;
    for (const ShownGroup& group : plan.groups) {
        for (const int taxon : group.taxa)
            for (std::size_t i = 0; plan.shares.inBasis[taxon] && i < sum.size(); ++i)
                sum[i] += plan.shares.percent[taxon][i];
        stacked.push_back(sum);
    }
    return stacked;
}

void planCumulative(Scene& scene)
{
    const FigurePanel& panel = scene.layout.cumulative;
    const auto& y = scene.layout.y;
    const double scale = panel.width / 100;
    scene.beginPanel(&FigureLayout::cumulative);
    const auto stacked = stackedGroups(scene.plan);
    const std::vector<SampleRun> runs = unbroken(scene.plan.shares);
    for (std::size_t group = 0; group < stacked.size(); ++group)
        for (const SampleRun& run : runs) {
            std::vector<PagePoint> points;
            for (std::size_t i = run.first; i <= run.second; ++i)
                points.push_back({panel.left + scale * (group == 0 ? 0 : stacked[group - 1][i]), y[i]});
            for (std::size_t i = run.second + 1; i-- > run.first;)
                points.push_back({panel.left + scale * stacked[group][i], y[i]});
            groupArea(scene, points, lookOf(scene, static_cast<int>(group)), thinLine);
        }
    std::vector<double> ticks;
    for (int percent = 20; percent <= 100; percent += 20)
        ticks.push_back(panel.left + scale * percent);
    scene.axisBelow(panel.left, panel.right(), ticks);
    for (int i = 0; i < 5; ++i)
        scene.numberBelow(ticks[i], std::to_string(20 * (i + 1)));
    scene.page.end();
}

/// The sums as numbers where they have room, else as bars.
void planTotals(Scene& scene)
{
    const FigurePanel& panel = scene.layout.total;
    const auto& y = scene.layout.y;
    const auto& sums = scene.plan.shares.sums;
    scene.beginPanel(&FigureLayout::total);
    double closest = 1e9;
    for (std::size_t i = 1; i < y.size(); ++i)
        closest = std::min(closest, y[i] - y[i - 1]);
    constexpr double forNumbers = 2.2;
    if (closest >= forNumbers) {
        for (std::size_t i = 0; i < y.size(); ++i)
            scene.text(panel.right(), y[i] + 0.36 * smallLetters * millimetresPerPoint, labelText(sums[i], 1),
                       smallLetters, Anchor::end);
        scene.page.end();
        return;
    }
    const double end = roundEnd(*std::max_element(sums.begin(), sums.end()));
    scene.page.mark(PageMark::Kind::line, {RGB(0x66, 0x66, 0x66), 0.7});
    for (std::size_t i = 0; i < y.size(); ++i)
        if (sums[i] > 0) {
            scene.page.point(panel.left, y[i]);
            scene.page.point(panel.left + sums[i] / end * panel.width, y[i]);
        }
    scene.page.line(panel.left, scene.layout.plotTop, panel.left, scene.layout.plotBottom, frameLine);
    scene.axisBelow(panel.left, panel.right(), {panel.right()});
    scene.numberBelow(panel.right(), labelText(end, 1));
    scene.page.end();
}

void planZoneNames(Scene& scene)
{
    const FigurePanel& panel = scene.layout.zones;
    scene.beginPanel(&FigureLayout::zones);
    for (const FigureZone& zone : scene.plan.zones) {
        if (scene.width(zone.name, axisLetters) > panel.width + 1)
            scene.plan.faults.push_back("\xE2\x80\x9C" + zone.name +
                                        "\xE2\x80\x9D is wider than the room for names of zones.");
        scene.text(panel.left + panel.width / 2,
                   (zone.top + zone.bottom) / 2 + 0.36 * axisLetters * millimetresPerPoint, zone.name,
                   axisLetters, Anchor::middle);
    }
    scene.page.end();
}

void planDendrogram(Scene& scene)
{
    const FigurePanel& panel = scene.layout.dendrogram;
    const FigureClusters& clusters = scene.plan.clusters;
    scene.beginPanel(&FigureLayout::dendrogram);
    double highest = 0;
    for (const ClusterMerge& merge : clusters.merges)
        highest = std::max(highest, merge.total);
    const double scale = highest > 0 ? panel.width / highest : 0;
    struct Stem {
        double x;
        double y;
    };
    // Each cluster is known by its first sample.
    std::vector<Stem> stems;
    for (const int sample : clusters.samples)
        stems.push_back({panel.left, scene.layout.y[sample]});
    scene.page.mark(PageMark::Kind::line, frameLine);
    const auto segment = [&](double x1, double y1, double x2, double y2) {
        if (x1 == x2 && y1 == y2)
            return;
        scene.page.point(x1, y1);
        scene.page.point(x2, y2);
    };
    for (const ClusterMerge& merge : clusters.merges) {
        Stem& upper = stems[merge.upperFirst];
        const Stem lower = stems[merge.lowerFirst];
        const double x = panel.left + merge.total * scale;
        segment(upper.x, upper.y, x, upper.y);
        segment(lower.x, lower.y, x, lower.y);
        segment(x, upper.y, x, lower.y);
        upper = {x, (upper.y + lower.y) / 2};
    }
    const double step = labelStep(0, highest, std::max(2, static_cast<int>(panel.width / 5)));
    std::vector<double> ticks;
    for (const double height : highest > 0 ? labelValues(0, highest, step) : std::vector<double>{0}) {
        ticks.push_back(panel.left + height * scale);
        scene.numberBelow(ticks.back(), labelText(height, step));
    }
    scene.axisBelow(panel.left, panel.right(), ticks);
    scene.unitBelow(panel, clusters.unweighted ? "Sum of squared distances" : "Total sum of squares");
    scene.page.end();
}

} // namespace

void planPanels(Scene& scene)
{
    const FigureLayout& layout = scene.layout;
    if (layout.cumulative.width > 0)
        planCumulative(scene);
    if (layout.total.width > 0)
        planTotals(scene);
    if (layout.concentration.width > 0)
        planConcentration(scene);
    if (layout.zones.width > 0)
        planZoneNames(scene);
    if (layout.dendrogram.width > 0)
        planDendrogram(scene);
}

void planZoneLines(Scene& scene)
{
    scene.page.begin({"zone-lines", "Zone boundaries"});
    for (std::size_t zone = 0; zone + 1 < scene.plan.zones.size(); ++zone) {
        const double y = scene.plan.zones[zone].bottom;
        scene.page.line(scene.layout.plotLeft, y, scene.layout.plotRight, y, {black, 0.5, 1.0, 0.7});
        scene.page.marks.back().id = "zone-" + std::to_string(zone + 1);
    }
    scene.page.end();
}
