// The taxa's columns: exaggerated curve, silhouette, curve, bars, points, "+", frame, percents and name.

#include "figure/axis_labels.h"
#include "figure/name_runs.h"
#include "figure/scene.h"

#include <algorithm>

namespace {

constexpr Colour exaggerationGrey = RGB(0xDD, 0xDD, 0xDD);

class Column {
public:
    Column(Scene& scene, const FigureColumn& column)
        : scene_(scene), page_(scene.page), column_(column), layout_(scene.layout),
          shares_(scene.plan.shares.percent[column.shown.taxon]), look_(lookOf(scene, column.shown.group))
    {
    }

    void plan(const std::vector<SampleRun>& runs)
    {
        const FigureStyle& style = scene_.settings.style;
        for (const SampleRun& run : runs) {
            exaggeration(run);
            if (style.silhouette)
                groupArea(scene_, outline(run), look_, thinLine);
            if (style.line)
                curve(run);
            // A single sample between empty ones has no extent as an area or a curve.
            if (run.first == run.second && (style.silhouette || style.line))
                bars(run, thinLine);
        }
        for (const SampleRun& run : runs) {
            if (style.thickBars)
                bars(run, {look_.hatchAngle < 0 ? look_.fill : RGB(0x60, 0x60, 0x60), 2.0});
            if (style.thinBars)
                bars(run, thinLine);
            if (style.points)
                points(run);
        }
        if (scene_.settings.plus)
            pluses();
        frame();
    }

private:
    double x(double percent) const { return column_.left + percent * layout_.mmPerPercent; }

    std::vector<PagePoint> outline(const SampleRun& run) const
    {
        std::vector<PagePoint> points;
        points.reserve(run.second - run.first + 3);
        points.push_back({column_.left, layout_.y[run.first]});
        for (std::size_t i = run.first; i <= run.second; ++i)
            points.push_back({x(shares_[i]), layout_.y[i]});
        points.push_back({column_.left, layout_.y[run.second]});
        return points;
    }

    void curve(const SampleRun& run)
    {
        page_.mark(PageMark::Kind::curve, {black, 0.5});
        for (std::size_t i = run.first; i <= run.second; ++i)
            page_.point(x(shares_[i]), layout_.y[i]);
    }

    /// Rare taxa are drawn several times as wide behind the true curve, cut where they meet the column's
    /// edge.
    void exaggeration(const SampleRun& run)
    {
        const FigureSettings& settings = scene_.settings;
        if (settings.exaggeration <= 1 || column_.largest >= settings.below || run.first == run.second)
            return;
        const double edge = column_.left + column_.width;
        const auto wide = [&](std::size_t i) { return x(settings.exaggeration * shares_[i]); };
        page_.mark(PageMark::Kind::area, {}).fill = exaggerationGrey;
        page_.point(column_.left, layout_.y[run.first]);
        for (std::size_t i = run.first; i <= run.second; ++i) {
            if (i > run.first && (wide(i - 1) > edge) != (wide(i) > edge)) {
                const double part = (edge - wide(i - 1)) / (wide(i) - wide(i - 1));
                page_.point(edge, layout_.y[i - 1] + part * (layout_.y[i] - layout_.y[i - 1]));
            }
            page_.point(std::min(wide(i), edge), layout_.y[i]);
        }
        page_.point(column_.left, layout_.y[run.second]);
    }

    void bars(const SampleRun& run, const Stroke& stroke)
    {
        page_.mark(PageMark::Kind::line, stroke);
        for (std::size_t i = run.first; i <= run.second; ++i)
            if (shares_[i] > 0) {
                page_.point(column_.left, layout_.y[i]);
                page_.point(x(shares_[i]), layout_.y[i]);
            }
    }

    void points(const SampleRun& run)
    {
        for (std::size_t i = run.first; i <= run.second; ++i)
            if (shares_[i] > 0) {
                PageMark& circle = page_.mark(PageMark::Kind::circle, {});
                circle.fill = black;
                circle.radius = 0.45;
                page_.point(x(shares_[i]), layout_.y[i]);
            }
    }

    /// Present with less than half a percent, where enough was counted for that to be a finding.
    void pluses()
    {
        constexpr double fromBase = 1.0;
        constexpr double arm = 0.45;
        constexpr double enough = 200;
        page_.mark(PageMark::Kind::line, thinLine);
        for (std::size_t i = 0; i < shares_.size(); ++i) {
            if (shares_[i] <= 0 || shares_[i] >= 0.5 || scene_.plan.shares.sums[i] < enough)
                continue;
            const double middle = column_.left + fromBase;
            const double y = layout_.y[i];
            page_.point(middle - arm, y);
            page_.point(middle + arm, y);
            page_.point(middle, y - arm);
            page_.point(middle, y + arm);
        }
    }

    void frame()
    {
        page_.line(column_.left, layout_.plotTop, column_.left, layout_.plotBottom, frameLine);
        std::vector<double> ticks;
        for (double percent = column_.labelStep; percent <= column_.reach + 1e-9;
             percent += column_.labelStep)
            ticks.push_back(x(percent));
        scene_.axisBelow(column_.left, column_.left + column_.width, ticks);
        for (std::size_t i = 0; i < ticks.size(); ++i)
            scene_.numberBelow(ticks[i],
                               labelText(column_.labelStep * static_cast<double>(i + 1), column_.labelStep));
        const std::string& name = scene_.plan.data.taxa[column_.shown.taxon].name;
        scene_.nameAbove(column_.left, nameRuns(name, slantOf(scene_.settings, name)));
    }

    Scene& scene_;
    Page& page_;
    const FigureColumn& column_;
    const FigureLayout& layout_;
    const std::vector<double>& shares_;
    const GroupLook look_;
};

} // namespace

void planColumns(Scene& scene)
{
    const std::vector<SampleRun> runs = unbroken(scene.plan.shares);
    int number = 0;
    for (const FigureColumn& column : scene.layout.columns) {
        scene.page.begin({"taxon-" + std::to_string(++number), scene.plan.data.taxa[column.shown.taxon].name,
                          column.left, column.width});
        Column(scene, column).plan(runs);
        scene.page.end();
    }
}
