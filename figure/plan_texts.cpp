// Headings of groups, legend, title and foot line.

#include "core/number_text.h"
#include "figure/scene.h"

#include <algorithm>

namespace {

constexpr double rowHeight = 3.3; // mm, of one row of headings
constexpr double oneRow = 6.0;    // headings in one row, with their line

struct Heading {
    std::string name;
    double left = 0;
    double right = 0; ///< of its columns
    int row = 0;      ///< from the line upwards
};

bool hasHeadings(const Scene& scene, const std::vector<ShownTaxon>& taxa)
{
    return scene.settings.headings && groupsStandTogether(taxa);
}

std::vector<ShownTaxon> shownTaxa(const Scene& scene)
{
    std::vector<ShownTaxon> taxa;
    for (const FigureColumn& column : scene.layout.columns)
        taxa.push_back(column.shown);
    return taxa;
}

/// A name that is longer than its columns goes a row up where it would run into the next one.
std::vector<Heading> headingsOf(const Scene& scene)
{
    std::vector<Heading> headings;
    int before = -1;
    for (const FigureColumn& column : scene.layout.columns) {
        if (column.shown.group != before)
            headings.push_back({scene.plan.groups[column.shown.group].name, column.left, 0, 0});
        before = column.shown.group;
        headings.back().right = column.left + column.width;
    }
    constexpr double apart = 1.5;
    for (std::size_t i = headings.size(); i-- > 0;) {
        Heading& heading = headings[i];
        const double end = heading.left + scene.width(heading.name, titleLetters) + apart;
        for (std::size_t right = i + 1; right < headings.size(); ++right)
            if (headings[right].left < end)
                heading.row = std::max(heading.row, headings[right].row + 1);
    }
    return headings;
}

/// Groups whose taxa are drawn, for a legend.
std::vector<int> legendGroups(const Scene& scene)
{
    std::vector<int> groups;
    if (scene.settings.cumulative > 0) {
        for (int i = 0; i < static_cast<int>(scene.plan.groups.size()); ++i)
            groups.push_back(i);
    } else {
        for (const FigureColumn& column : scene.layout.columns)
            groups.push_back(column.shown.group);
        std::sort(groups.begin(), groups.end());
        groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    }
    return groups;
}

bool hasLegend(const Scene& scene)
{
    const FigureStyle& style = scene.settings.style;
    const bool coloured = style.silhouette || style.thickBars || scene.settings.cumulative > 0;
    return coloured && !hasHeadings(scene, shownTaxa(scene)) && legendGroups(scene).size() > 1;
}

void planLegend(Scene& scene)
{
    scene.page.begin({"legend", "Groups"});
    double x = scene.layout.plotLeft;
    const double y = scene.settings.top + scene.layout.titleHeight + 2.7;
    for (const int group : legendGroups(scene)) {
        groupArea(scene, {{x, y - 2.2}, {x + 3.5, y - 2.2}, {x + 3.5, y}, {x, y}}, lookOf(scene, group),
                  thinLine);
        const std::string& name = scene.plan.groups[group].name;
        scene.text(x + 4.5, y - 0.25, name, axisLetters, Anchor::start);
        x += 4.5 + scene.width(name, axisLetters) + 4;
    }
    scene.page.end();
}

} // namespace

double headingsHeight(const Scene& scene)
{
    if (!hasHeadings(scene, shownTaxa(scene)))
        return hasLegend(scene) ? oneRow : 0;
    int rows = 0;
    for (const Heading& heading : headingsOf(scene))
        rows = std::max(rows, heading.row);
    return oneRow + rowHeight * rows;
}

void planHeadings(Scene& scene)
{
    const FigureSettings& settings = scene.settings;
    if (!settings.title.empty())
        scene.text(settings.width / 2, settings.top + 3.6, settings.title, 10, Anchor::middle);
    if (hasLegend(scene))
        planLegend(scene);
    if (!hasHeadings(scene, shownTaxa(scene)))
        return;
    scene.page.begin({"headings", "Groups"});
    constexpr double belowLine = 2.5;
    const double line = settings.top + scene.layout.titleHeight + scene.layout.headingHeight - belowLine;
    for (const Heading& heading : headingsOf(scene)) {
        scene.page.line(heading.left, line, heading.right, line, frameLine);
        const double y = line - 1.0 - rowHeight * heading.row;
        if (heading.row > 0)
            scene.page.line(heading.left, y + 0.4, heading.left, line, {black, 0.35});
        scene.text(heading.left, y, heading.name, titleLetters, Anchor::start);
    }
    scene.page.end();
}

/// What the figure shows, in one line or two, left of what the axes of panels count.
void planFoot(Scene& scene)
{
    const FigureSettings& settings = scene.settings;
    const FigureLayout& layout = scene.layout;
    scene.page.begin({"foot", "Foot line"});

    std::vector<std::string> parts = {settings.foot.empty() ? basisSentence(scene.plan.data, settings.basis)
                                                            : settings.foot};
    const bool byClusters = settings.zonesBy == ZonesBy::stick && scene.plan.zones.size() > 1;
    if (layout.dendrogram.width > 0 || byClusters)
        parts.push_back("Clusters: " + methodName(settings));
    const double room = scene.footEnd() - layout.plotLeft;
    const std::string line = parts[0];
    if (parts.size() > 1 && scene.width(line + ". " + parts[1], smallLetters) <= room)
        parts = {line + ". " + parts[1]};
    const bool exaggerated = settings.exaggeration > 1 &&
                             std::any_of(layout.columns.begin(), layout.columns.end(),
                                         [&](const auto& column) { return column.largest < settings.below; });
    // What a reader may guess goes where there is room; the caption tells it too.
    std::vector<std::string> signs;
    if (exaggerated)
        signs.push_back("Grey: \xC3\x97 " + plainDecimal(settings.exaggeration));
    if (settings.plus)
        signs.push_back("+: below 0.5 %");
    for (const std::string& sign : signs)
        if (scene.width(parts.back() + ". " + sign, smallLetters) <= room)
            parts.back() += ". " + sign;
    const double first = parts.size() == 1 ? 6.6 : 5.9;
    for (std::size_t i = 0; i < parts.size(); ++i)
        scene.text(layout.plotLeft, layout.plotBottom + first + 2.4 * static_cast<double>(i), parts[i],
                   smallLetters, Anchor::start);
    scene.page.end();
}
