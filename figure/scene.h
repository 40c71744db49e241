#pragma once

#include "figure/plan_figure.h"

/// A figure while it is planned. Strokes and sizes of letters are those of journals: lines of 0.35 points and
/// more, letters of 6 points and more.

constexpr Colour black = RGB(0, 0, 0);
constexpr double smallLetters = 6; ///< percents and sums
constexpr double axisLetters = 7;  ///< depths and names of zones
constexpr double titleLetters = 8;
constexpr double tick = 1.0; ///< mm
constexpr Stroke frameLine{black, 0.5};
constexpr Stroke thinLine{black, 0.35};

class Scene {
public:
    Scene(FigurePlan& planned, const FigureSettings& chosen, const LetterWidths& letterWidths)
        : plan(planned), settings(chosen), layout(planned.layout), page(planned.page), widths_(letterWidths),
          footEnd_(chosen.width - chosen.right)
    {
    }

    FigurePlan& plan;
    const FigureSettings& settings;
    const FigureLayout& layout;
    Page& page;

    /// Width of a text, mm.
    double width(const std::vector<TextRun>& runs, double points) const;
    double width(const std::string& text, double points) const { return width({{text, false}}, points); }
    /// A text at (x, y), measured.
    void text(double x, double y, std::vector<TextRun> runs, double points, Anchor anchor, double angle = 0);
    void text(double x, double y, const std::string& words, double points, Anchor anchor, double angle = 0)
    {
        text(x, y, std::vector<TextRun>{{words, false}}, points, anchor, angle);
    }
    /// Begins the group of a panel, with its name above.
    void beginPanel(FigurePanel FigureLayout::*place);
    /// What stands turned above a column or panel.
    void nameAbove(double left, std::vector<TextRun> runs);
    /// A horizontal axis below the plot from `left` to `right` with its ticks.
    void axisBelow(double left, double right, const std::vector<double>& ticks);
    /// A number below the plot. One that would touch the number before it is left out: ticks tell it.
    void numberBelow(double x, const std::string& number);
    /// What the numbers below a panel count. The foot line ends left of it.
    void unitBelow(const FigurePanel& panel, const std::string& unit);
    /// Left end of the first unit below, or the right margin.
    double footEnd() const { return footEnd_; }

private:
    const LetterWidths& widths_;
    double footEnd_;
    double unitsEnd_ = -1e9;   ///< right end of the unit below written last
    double numbersEnd_ = -1e9; ///< right end of the number below the plot written last
};

/// Samples of one unbroken curve: first and last index.
using SampleRun = std::pair<std::size_t, std::size_t>;
std::vector<SampleRun> unbroken(const FigureShares& shares);

/// The look of a group: its colour, a grey, or a hatch on white.
struct GroupLook {
    Colour fill;
    double hatchAngle = -1; ///< degrees; negative: none
};
GroupLook lookOf(const Scene& scene, int group);
/// An area of a group, outlined by `outline`. `points` go round it.
void groupArea(Scene& scene, const std::vector<PagePoint>& points, const GroupLook& look,
               const Stroke& outline);

void planColumns(Scene& scene);
void planHeadings(Scene& scene);
void planAxes(Scene& scene);
void planPanels(Scene& scene);
void planConcentration(Scene& scene);
void planZoneLines(Scene& scene);
void planFoot(Scene& scene);
/// Height of the headings, or of the legend where groups do not stand together; 0 for none. It goes by the
/// places of the columns.
double headingsHeight(const Scene& scene);
/// Finds texts over texts and what stands outside of the page.
void findFaults(Scene& scene);
