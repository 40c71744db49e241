// The axes of depths and ages at the left.

#include "figure/axis_labels.h"
#include "figure/scene.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double beside = 1.5;    // mm between an axis and what is right of it
constexpr double titleFrom = 2.5; // mm from the left edge of its room
constexpr double half = 0.36;     // of the size of letters: from the middle of a digit to its foot

struct AxisLabel {
    double y = 0;
    std::string text;
};

/// An axis at `x` from `top` to `bottom`.
void drawAxis(Scene& scene, double x, double top, double bottom, const std::vector<AxisLabel>& labels)
{
    scene.page.line(x, top, x, bottom, frameLine);
    if (labels.empty())
        return;
    scene.page.mark(PageMark::Kind::line, frameLine);
    for (const AxisLabel& label : labels) {
        scene.page.point(x - tick, label.y);
        scene.page.point(x, label.y);
    }
    for (const AxisLabel& label : labels)
        scene.text(x - tick - 0.5, label.y + half * axisLetters * millimetresPerPoint, label.text,
                   axisLetters, Anchor::end);
}

void drawTitle(Scene& scene, double left, const std::string& title, const std::string& unit)
{
    const double middle = (scene.layout.plotTop + scene.layout.plotBottom) / 2;
    const std::string text = unit.empty() ? title : title + " (" + unit + ")";
    if (!text.empty())
        scene.text(left + titleFrom, middle, text, titleLetters, Anchor::middle, 90);
}

/// Labels at round depths: as few as fit, at most 14.
std::vector<AxisLabel> depthLabels(const Scene& scene)
{
    const FigureLayout& layout = scene.layout;
    const double first = std::min(layout.firstDepth, layout.lastDepth);
    const double last = std::max(layout.firstDepth, layout.lastDepth);
    double step = scene.settings.depthStep;
    if (step <= 0) {
        const double room = std::abs(layout.yOf(last) - layout.yOf(first));
        constexpr double lineHeight = 1.3 * axisLetters * millimetresPerPoint;
        const int most = std::clamp(static_cast<int>(room / lineHeight), 2, 14);
        step = labelStep(first, last, most);
    }
    std::vector<AxisLabel> labels;
    for (const double depth : labelValues(first, last, step))
        labels.push_back({layout.yOf(depth), labelText(depth, step)});
    return labels;
}

/// Names of samples; where rows are too close, of every second, fifth, ... one.
std::vector<AxisLabel> nameLabels(const Scene& scene)
{
    const auto& samples = scene.plan.data.samples;
    const auto& y = scene.layout.y;
    const double apart = y.size() > 1 ? y[1] - y[0] : 1e9;
    constexpr double lineHeight = 1.15 * axisLetters * millimetresPerPoint;
    std::size_t every = 1;
    for (const std::size_t step : {1, 2, 5, 10, 20, 50, 100})
        if (static_cast<double>(every = step) * apart >= lineHeight)
            break;
    std::vector<AxisLabel> labels;
    for (std::size_t i = 0; i < samples.size(); i += every)
        labels.push_back({y[i], samples[i].name});
    return labels;
}

/// The depth of an age: on the straight line between two dated depths. Nothing beyond them.
std::optional<double> depthOf(const std::vector<DatedDepth>& ages, double age)
{
    for (std::size_t i = 0; i + 1 < ages.size(); ++i) {
        const auto& [upper, upperAge] = ages[i];
        const auto& [lower, lowerAge] = ages[i + 1];
        const double part = (age - upperAge) / (lowerAge - upperAge);
        if (part >= -1e-9 && part <= 1 + 1e-9)
            return upper + part * (lower - upper);
    }
    return std::nullopt;
}

double ageOf(const std::vector<DatedDepth>& ages, double depth)
{
    std::size_t i = 0;
    while (i + 2 < ages.size() && ages[i + 1].depth < depth)
        ++i;
    const double part = (depth - ages[i].depth) / (ages[i + 1].depth - ages[i].depth);
    return ages[i].age + part * (ages[i + 1].age - ages[i].age);
}

bool oneWay(const std::vector<DatedDepth>& ages)
{
    const auto falls = [](const DatedDepth& a, const DatedDepth& b) {
        return !(a.depth < b.depth) || !(a.age < b.age);
    };
    const auto rises = [](const DatedDepth& a, const DatedDepth& b) {
        return !(a.depth < b.depth) || !(a.age > b.age);
    };
    return std::adjacent_find(ages.begin(), ages.end(), falls) == ages.end() ||
           std::adjacent_find(ages.begin(), ages.end(), rises) == ages.end();
}

void planAges(Scene& scene)
{
    const FigureLayout& layout = scene.layout;
    std::vector<DatedDepth> ages = scene.settings.ages;
    std::stable_sort(ages.begin(), ages.end(),
                     [](const auto& a, const auto& b) { return a.depth < b.depth; });
    if (ages.size() < 2 || !oneWay(ages)) {
        scene.plan.faults.push_back("Ages need at least two depths, and must rise or fall with depth.");
        return;
    }
    const double top = std::max(ages.front().depth, layout.firstDepth);
    const double bottom = std::min(ages.back().depth, layout.lastDepth);
    if (top >= bottom) {
        scene.plan.faults.push_back("No dated depth lies within the core.");
        return;
    }
    const double first = std::min(ageOf(ages, top), ageOf(ages, bottom));
    const double last = std::max(ageOf(ages, top), ageOf(ages, bottom));
    constexpr double lineHeight = 1.3 * axisLetters * millimetresPerPoint;
    const double room = layout.yOf(bottom) - layout.yOf(top);
    const int most = std::clamp(static_cast<int>(room / lineHeight), 2, 14);
    // Where years lie close, labels are left out and ticks stay: steps cannot be even.
    const double step = scene.settings.ageStep > 0 ? scene.settings.ageStep : labelStep(first, last, most);
    std::vector<AxisLabel> labels;
    for (const double age : labelValues(first, last, step))
        if (const auto depth = depthOf(ages, age))
            labels.push_back({layout.yOf(*depth), labelText(age, step)});
    std::sort(labels.begin(), labels.end(), [](const auto& a, const auto& b) { return a.y < b.y; });
    double end = -1e9;
    for (AxisLabel& label : labels)
        if (label.y - end < 0.9 * lineHeight)
            label.text.clear();
        else
            end = label.y;
    scene.page.begin({"age-axis", scene.settings.ageTitle, scene.settings.left, scene.settings.axis2});
    drawAxis(scene, layout.axisLeft - beside, layout.yOf(top), layout.yOf(bottom), labels);
    drawTitle(scene, scene.settings.left, scene.settings.ageTitle, scene.settings.ageUnit);
    scene.page.end();
}

} // namespace

void planAxes(Scene& scene)
{
    const FigureLayout& layout = scene.layout;
    const FigureData& data = scene.plan.data;
    if (data.byDepth && !scene.settings.ages.empty())
        planAges(scene);
    const std::string title = !data.byDepth && scene.settings.depthTitle == FigureSettings().depthTitle
                                  ? "Sample"
                                  : scene.settings.depthTitle;
    scene.page.begin({"depth-axis", title, layout.axisLeft, layout.plotLeft - layout.axisLeft});
    drawAxis(scene, layout.plotLeft - beside, layout.plotTop, layout.plotBottom,
             data.byDepth && layout.firstDepth != layout.lastDepth ? depthLabels(scene) : nameLabels(scene));
    drawTitle(scene, layout.axisLeft, title, data.byDepth ? scene.settings.depthUnit : "");
    scene.page.end();
}
