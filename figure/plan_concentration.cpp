// The panel of concentrations: a bar for each sample with its limits.

#include "figure/axis_labels.h"
#include "figure/scene.h"

#include <algorithm>

namespace {

using Value = MeasuredConcentration::Value;

/// Of the basis in each sample.
std::vector<std::optional<Value>> values(const Scene& scene)
{
    std::vector<std::optional<Value>> found;
    for (const FigureSample& sample : scene.plan.data.samples)
        found.push_back(sample.concentration
                            ? sample.concentration->sums[static_cast<std::size_t>(scene.settings.basis)]
                            : std::nullopt);
    return found;
}

/// "ml"; a fault if samples were measured in different units.
std::string unitOf(Scene& scene)
{
    std::string unit;
    bool first = true;
    for (const FigureSample& sample : scene.plan.data.samples) {
        if (!sample.concentration)
            continue;
        if (!first && sample.concentration->unit != unit) {
            scene.plan.faults.push_back(
                "Concentrations in one panel need one unit of the quantity, not both \"" + unit +
                "\" and \"" + sample.concentration->unit + "\".");
            return unit;
        }
        first = false;
        unit = sample.concentration->unit;
    }
    return unit;
}

} // namespace

void planConcentration(Scene& scene)
{
    const FigurePanel& panel = scene.layout.concentration;
    const auto& y = scene.layout.y;
    const auto found = values(scene);
    double largest = 0;
    for (const auto& one : found)
        if (one)
            largest = std::max({largest, one->value, one->upper});
    const double end = roundEnd(largest);
    const auto x = [&](double value) { return panel.left + value / end * panel.width; };
    scene.beginPanel(&FigureLayout::concentration);
    scene.page.mark(PageMark::Kind::line, {RGB(0x99, 0x99, 0x99), 2.0});
    for (std::size_t i = 0; i < found.size(); ++i)
        if (found[i] && found[i]->value > 0) {
            scene.page.point(panel.left, y[i]);
            scene.page.point(x(found[i]->value), y[i]);
        }
    scene.page.mark(PageMark::Kind::line, thinLine);
    for (std::size_t i = 0; i < found.size(); ++i)
        if (found[i] && found[i]->upper > 0) {
            scene.page.point(x(found[i]->lower), y[i]);
            scene.page.point(x(found[i]->upper), y[i]);
        }
    scene.page.line(panel.left, scene.layout.plotTop, panel.left, scene.layout.plotBottom, frameLine);
    // Many zeros leave no room for numbers.
    constexpr double thousand = 1000;
    const double counted = end >= 10 * thousand ? thousand : 1;
    const double step = labelStep(0, end / counted, std::max(2, static_cast<int>(panel.width / 6)));
    std::vector<double> ticks;
    for (const double value : labelValues(0, end / counted, step)) {
        ticks.push_back(x(value * counted));
        scene.numberBelow(ticks.back(), labelText(value, step));
    }
    scene.axisBelow(panel.left, panel.right(), ticks);
    const std::string unit = unitOf(scene);
    scene.unitBelow(panel, (counted > 1 ? "1000 per " : "per ") + (unit.empty() ? "unit" : unit));
    scene.page.end();
}
