#include "figure/scene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

double Scene::width(const std::vector<TextRun>& runs, double points) const
{
    double ems = 0;
    for (const TextRun& run : runs)
        ems += widths_(run.text, run.italic);
    return ems * points * millimetresPerPoint;
}

void Scene::text(double x, double y, std::vector<TextRun> runs, double points, Anchor anchor, double angle)
{
    PageText made;
    made.width = width(runs, points);
    made.runs = std::move(runs);
    made.points = points;
    made.anchor = anchor;
    made.angle = angle;
    page.text(x, y, std::move(made));
}

void Scene::nameAbove(double left, std::vector<TextRun> runs)
{
    constexpr double right = 1.0;
    constexpr double above = 1.5;
    text(left + right, layout.plotTop - above, std::move(runs), settings.namePoints, Anchor::start,
         settings.nameAngle);
}

void Scene::axisBelow(double left, double right, const std::vector<double>& ticks)
{
    page.line(left, layout.plotBottom, right, layout.plotBottom, frameLine);
    page.mark(PageMark::Kind::line, frameLine);
    for (const double x : ticks) {
        page.point(x, layout.plotBottom);
        page.point(x, layout.plotBottom + tick);
    }
}

void Scene::numberBelow(double x, const std::string& number)
{
    constexpr double baseLine = 3.4;
    constexpr double apart = 0.4;
    const double half = width(number, smallLetters) / 2;
    if (x - half < numbersEnd_ + apart)
        return;
    numbersEnd_ = x + half;
    text(x, layout.plotBottom + baseLine, number, smallLetters, Anchor::middle);
}

void Scene::beginPanel(FigurePanel FigureLayout::*place)
{
    const auto kinds = panelKinds(settings);
    const PanelKind& kind =
        *std::find_if(kinds.begin(), kinds.end(), [&](const PanelKind& one) { return one.place == place; });
    const FigurePanel& panel = layout.*place;
    page.begin({kind.id, kind.name, panel.left, panel.width});
    nameAbove(panel.left, {{kind.name, false}});
}

void Scene::unitBelow(const FigurePanel& panel, const std::string& unit)
{
    constexpr double baseLine = 6.6;
    constexpr double apart = 2;
    const double half = width(unit, smallLetters) / 2;
    const double middle =
        std::max(unitsEnd_ + apart + half,
                 std::min(panel.left + panel.width / 2, settings.width - settings.right - half));
    text(middle, layout.plotBottom + baseLine, unit, smallLetters, Anchor::middle);
    footEnd_ = std::min(footEnd_, middle - half - apart);
    unitsEnd_ = middle + half;
}

std::vector<SampleRun> unbroken(const FigureShares& shares)
{
    std::vector<SampleRun> runs;
    for (std::size_t i = 0; i < shares.sums.size(); ++i) {
        if (!shares.has(i))
            continue;
        if (i == 0 || !shares.has(i - 1))
            runs.push_back({i, i});
        runs.back().second = i;
    }
    return runs;
}

GroupLook lookOf(const Scene& scene, int group)
{
    constexpr std::array<std::uint8_t, 6> greys = {0x50, 0xC8, 0x8C, 0xE6, 0x6E, 0xAA};
    constexpr std::array<double, 6> angles = {45, 135, 0, 90, 20, 160};
    const std::size_t index = static_cast<std::size_t>(group);
    switch (scene.settings.fill) {
    case GroupFill::greys: {
        const std::uint8_t grey = greys[index % greys.size()];
        return {RGB(grey, grey, grey)};
    }
    case GroupFill::hatches:
        return {RGB(255, 255, 255), angles[index % angles.size()]};
    case GroupFill::colours:
        break;
    }
    return {scene.plan.groups[index].colour};
}

/// Parallel lines within an area, as lines of their own: so every program draws the same hatch.
static void hatch(Scene& scene, const std::vector<PagePoint>& points, double angle)
{
    constexpr double apart = 0.8; // mm
    const double radians = angle * std::numbers::pi / 180;
    const PagePoint along{std::cos(radians), -std::sin(radians)};
    const PagePoint across{std::sin(radians), std::cos(radians)};
    // Each edge of the area crosses the lines whose number lies between those of its ends.
    std::vector<std::pair<long, double>> crossings; // line, place along it
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PagePoint a = points[i];
        const PagePoint b = points[(i + 1) % points.size()];
        const double from = (a.x * across.x + a.y * across.y) / apart;
        const double to = (b.x * across.x + b.y * across.y) / apart;
        const double placeA = a.x * along.x + a.y * along.y;
        const double placeB = b.x * along.x + b.y * along.y;
        for (long line = std::lround(std::ceil(std::min(from, to)));
             static_cast<double>(line) < std::max(from, to); ++line)
            crossings.emplace_back(line, placeA + (placeB - placeA) * (static_cast<double>(line) - from) /
                                                      (to - from));
    }
    std::sort(crossings.begin(), crossings.end());
    scene.page.mark(PageMark::Kind::line, {black, 0.25});
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        for (const auto& [line, place] : {crossings[i], crossings[i + 1]}) {
            const double distance = static_cast<double>(line) * apart;
            scene.page.point(place * along.x + distance * across.x, place * along.y + distance * across.y);
        }
}

void groupArea(Scene& scene, const std::vector<PagePoint>& points, const GroupLook& look,
               const Stroke& outline)
{
    const bool hatched = look.hatchAngle >= 0;
    const auto area = [&](bool filled, const Stroke& stroke) {
        PageMark& mark = scene.page.mark(PageMark::Kind::area, stroke);
        if (filled)
            mark.fill = look.fill;
        for (const PagePoint& point : points)
            scene.page.point(point.x, point.y);
    };
    area(true, hatched ? Stroke{} : outline);
    if (!hatched)
        return;
    hatch(scene, points, look.hatchAngle);
    area(false, outline);
}
