#include "statistics/rarefaction_plot.h"

#include "core/number_text.h"
#include "statistics/richness.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Colour black = RGB(0, 0, 0);
constexpr Colour grey = RGB(150, 150, 150);
constexpr Colour blue = RGB(0, 114, 178);
constexpr Colour red = RGB(255, 0, 0);
constexpr float letters = 11;
constexpr int curvePoints = 120;

/// Where individuals and taxa stand.
struct Frame {
    float left = 40;
    float top = 10;
    float right = 0;
    float bottom = 0;
    double individuals = 1;
    double taxa = 1;

    float x(double n) const { return left + static_cast<float>(n / individuals) * (right - left); }
    float y(double s) const { return bottom - static_cast<float>(s / taxa) * (bottom - top); }
};

/// 1, 2 or 5 times a power of ten that gives at most `most` steps.
double stepFor(double range, int most)
{
    double step = std::pow(10, std::floor(std::log10(range / most)));
    for (const double factor : {2.0, 2.5, 2.0})
        if (range / step > most)
            step *= factor;
    return std::max(1.0, step);
}

void drawAxes(Drawing& drawing, const Frame& frame)
{
    drawing.line(frame.left, frame.bottom, frame.right, frame.bottom, grey);
    drawing.line(frame.left, frame.top, frame.left, frame.bottom, grey);
    const auto number = [&](double value) { return decimalText(static_cast<long long>(value)); };
    const double along = stepFor(frame.individuals, 6);
    for (double n = 0; n <= frame.individuals; n += along) {
        drawing.line(frame.x(n), frame.bottom, frame.x(n), frame.bottom + 3, grey);
        const auto digits = static_cast<float>(number(n).size());
        drawing.text(frame.x(n) - 3 * digits, frame.bottom + 4, {number(n), letters}, black);
    }
    const double up = stepFor(frame.taxa, 5);
    for (double s = up; s <= frame.taxa; s += up) {
        drawing.line(frame.left - 3, frame.y(s), frame.left, frame.y(s), grey);
        const auto digits = static_cast<float>(number(s).size());
        drawing.text(frame.left - 6 - 6 * digits, frame.y(s) - letters / 2 - 1, {number(s), letters}, black);
    }
}

/// True if there was a line to draw.
bool drawLive(Drawing& drawing, const Frame& frame, const std::vector<std::int16_t>& live)
{
    const std::size_t step = std::max<std::size_t>(1, live.size() / 600);
    std::size_t before = 0; // of the points of a long curve some are enough
    bool drawn = false;
    for (std::size_t n = 1; n < live.size(); n += step) {
        if (live[n] == 0)
            continue;
        if (before > 0)
            drawing.line(frame.x(static_cast<double>(before)), frame.y(live[before] / 10.0),
                         frame.x(static_cast<double>(n)), frame.y(live[n] / 10.0), red);
        drawn = drawn || before > 0;
        before = n;
    }
    return drawn;
}

} // namespace

Drawing planRarefaction(std::span<const std::int32_t> members, const std::vector<std::int16_t>& live,
                        float width, float height)
{
    Drawing drawing;
    const auto richness = measureRichness(members);
    if (!richness || width < 120 || height < 80)
        return drawing;
    Frame frame;
    frame.right = width - 14;
    frame.bottom = height - 34;
    frame.individuals = std::max(richness->individuals, static_cast<double>(live.size()) - 1);
    frame.taxa =
        std::max(richness->taxa, live.empty() ? 0 : *std::max_element(live.begin(), live.end()) / 10.0);
    drawAxes(drawing, frame);
    const bool hasLive = drawLive(drawing, frame, live);
    double before = 0;
    double taxaBefore = 0;
    for (int point = 1; point <= curvePoints; ++point) {
        // Closer together where the curve bends.
        const double part = static_cast<double>(point) / curvePoints;
        const double n = std::max(1.0, std::round(richness->individuals * part * part));
        if (n == before)
            continue;
        const double taxa = *rarefiedTaxa(members, n);
        drawing.line(frame.x(before), frame.y(taxaBefore), frame.x(n), frame.y(taxa), blue);
        before = n;
        taxaBefore = taxa;
    }
    const float middle = frame.left + (frame.right - frame.left) / 2;
    drawing.text(frame.left, height - 16, {"Individuals", letters}, black);
    drawing.text(middle - 60, height - 16, {"Rarefaction, taxa of the % basis", letters}, blue);
    if (hasLive)
        drawing.text(std::max(middle + 130, frame.right - 110), height - 16,
                     {"As counted, all taxa", letters}, red);
    return drawing;
}
