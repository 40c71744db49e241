#include "diagram/paint_diagram.h"

#include "core/taxon_name.h"
#include <cmath>

namespace {

constexpr Colour black = RGB(0, 0, 0);
constexpr Colour white = RGB(255, 255, 255);

} // namespace

/// Paints one column. Samples count by rank, so that the share of rank i stands at row i.
class ColumnPainter {
public:
    ColumnPainter(Drawing& drawing, const PlotData& plot, const std::vector<float>& rows,
                  const DiagramView& view, int column, float left)
        : drawing_(drawing), plot_(plot), rows_(rows), view_(view), column_(column), left_(left),
          base_(left * view.zoom), samples_(static_cast<int>(rows.size()) - 1)
    {
    }

    void bars()
    {
        for (int i = 1; i <= samples_; ++i)
            bar(i);
    }

    /// Closes the curve against the axis.
    void curveEnds()
    {
        for (int i = 2; i < samples_; ++i)
            if (empty(i)) {
                bar(i - 1);
                bar(i + 1);
            }
        if (empty(1))
            bar(2);
        bar(1);
        bar(samples_);
    }

    void curve()
    {
        for (int i = 2; i <= samples_; ++i)
            if (!empty(i - 1) && !empty(i))
                drawing_.line(end(i), rows_[i], end(i - 1), rows_[i - 1], view_.colour);
    }

    void axis() { drawing_.line(base_, 10, base_, 10.0F * static_cast<float>(samples_), black); }

    void dots()
    {
        constexpr float radius = 1.5F;
        for (int i = 1; i <= samples_; ++i)
            if (plot_.Share(i, column_) > 0.005)
                drawing_.circle(end(i), rows_[i], radius, view_.colour, white);
    }

    void ticks(float width)
    {
        constexpr float farthest = 32767; // percent; a mistyped count may make a column millions wide
        const auto [scaleLeft, top, scaleWidth, height] = view_.scale;
        float percent = 0;
        do {
            const float x = (left_ + percent) * view_.zoom;
            drawing_.line(x, top, x, top + height * 8 / 1000, black);
            drawing_.line(x, top + height, x, top + height * 988 / 1000, black);
            percent += 10;
        } while (width > percent + 5 && percent < farthest);
    }

private:
    float end(int i) const { return (plot_.Share(i, column_) * 100 + left_) * view_.zoom; }
    bool empty(int i) const { return plot_.Share(i, 0) == 0; }

    void bar(int i) { drawing_.line(base_, rows_[i], end(i), rows_[i], view_.colour); }

    Drawing& drawing_;
    const PlotData& plot_;
    const std::vector<float>& rows_;
    const DiagramView& view_;
    const int column_;
    const float left_; ///< of the column in the view, percent
    const float base_; ///< the same in units of the scale
    const int samples_;
};

// The axis lies over bars and curves and under dots.

void paintBars(ColumnPainter& column)
{
    column.bars();
    column.axis();
}

void paintCurve(ColumnPainter& column)
{
    column.curveEnds();
    column.curve();
    column.axis();
}

void paintDots(ColumnPainter& column)
{
    column.axis();
    column.dots();
}

void paintBarsAndCurve(ColumnPainter& column)
{
    column.bars();
    column.curve();
    column.axis();
}

void paintDotsAndCurve(ColumnPainter& column)
{
    column.curve();
    column.axis();
    column.dots();
}

Scale rowScale(int samples, float width)
{
    const int quarter = samples / 4;
    Scale scale{0, static_cast<float>(10 - quarter), width,
                static_cast<float>(2 * quarter + 10 * (samples - 1))};
    if (samples == 2)
        scale.top = scale.height * 0.975F;
    if (samples == 3)
        scale.top = scale.height * 0.95F / 2;
    if (samples == 2 || samples == 3)
        scale.height *= 1.05F;
    return scale;
}

Drawing planDiagram(const PlotData& plot, const std::vector<float>& rows, const DiagramView& view)
{
    Drawing drawing;
    const std::size_t samples = rows.size() - 1;
    if (samples < 2)
        return drawing;
    const auto [left, top, width, height] = view.scale;
    drawing.box(left, top, left + width, top + height, white);
    drawing.marks.reserve(taxonSlots * 2 * samples);
    for (int column = 1; column <= taxonSlots; ++column) {
        const float begins = plot.ColumnLeft[column] - view.scroll;
        const float ends = plot.ColumnLeft[column + 1] - view.scroll;
        if (ends * view.zoom < 0 || begins * view.zoom >= width)
            continue;
        ColumnPainter painter(drawing, plot, rows, view, column, begins);
        view.paintColumn(painter);
        painter.ticks(plot.ColumnLeft[column + 1] - plot.ColumnLeft[column]);
    }
    return drawing;
}

Letters nameLetters(const std::string& name, bool italic, float longest)
{
    constexpr float letterHeight = 10.4F; // the letters of a font 12 pixels high from line to line
    if (name.empty() || name == noText)
        return {noText, letterHeight, false, longest, true};
    return {name, letterHeight, italic, longest, true};
}

Drawing planNames(const PlotData& plot, const DiagramView& view, float origin)
{
    bool families = false;
    for (int column = 1; column <= taxonSlots; ++column)
        families = families || isFamily(plot.ColumnName[column]);
    Drawing drawing;
    for (int column = 1; column <= taxonSlots; ++column) {
        const float left = plot.ColumnLeft[column] - view.scroll;
        if (left * view.zoom < 0 || left * view.zoom >= view.scale.width)
            continue;
        const std::string& name = plot.ColumnName[column];
        drawing.text(std::trunc(left * pixelsPerUnit * view.zoom), origin,
                     nameLetters(name, families && !isFamily(name), origin), black);
    }
    return drawing;
}
