// Looks whether a planned page can be printed: no text over a text, nothing outside of the page.

#include "figure/axis_labels.h"
#include "figure/scene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

/// The frame of a text's letters, turned with it.
struct Frame {
    std::array<PagePoint, 4> corners;
    PageBox bounds;
};

Frame frameOf(const PageText& text, PagePoint at)
{
    const double size = text.points * millimetresPerPoint;
    const double left = text.anchor == Anchor::start    ? 0
                        : text.anchor == Anchor::middle ? -text.width / 2
                                                        : -text.width;
    constexpr double ascent = 0.72;
    constexpr double descent = 0.20;
    const double radians = text.angle * std::numbers::pi / 180;
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    Frame frame;
    const std::array<PagePoint, 4> flat = {{{left, -ascent * size},
                                            {left + text.width, -ascent * size},
                                            {left + text.width, descent * size},
                                            {left, descent * size}}};
    frame.bounds = {1e9, 1e9, -1e9, -1e9};
    for (std::size_t i = 0; i < flat.size(); ++i) {
        const PagePoint corner{at.x + flat[i].x * c + flat[i].y * s, at.y - flat[i].x * s + flat[i].y * c};
        frame.corners[i] = corner;
        frame.bounds.left = std::min(frame.bounds.left, corner.x);
        frame.bounds.right = std::max(frame.bounds.right, corner.x);
        frame.bounds.top = std::min(frame.bounds.top, corner.y);
        frame.bounds.bottom = std::max(frame.bounds.bottom, corner.y);
    }
    return frame;
}

/// Is there a line along an edge of `a` that parts it from `b`?
bool parted(const Frame& a, const Frame& b)
{
    for (std::size_t i = 0; i < 2; ++i) {
        const PagePoint axis{a.corners[i + 1].x - a.corners[i].x, a.corners[i + 1].y - a.corners[i].y};
        const auto extent = [&](const Frame& frame) {
            std::pair<double, double> range(1e18, -1e18);
            for (const PagePoint& corner : frame.corners) {
                const double place = corner.x * axis.x + corner.y * axis.y;
                range.first = std::min(range.first, place);
                range.second = std::max(range.second, place);
            }
            return range;
        };
        const auto [fromA, toA] = extent(a);
        const auto [fromB, toB] = extent(b);
        if (toA <= fromB || toB <= fromA)
            return true;
    }
    return false;
}

bool overlap(const Frame& a, const Frame& b)
{
    return a.bounds.left < b.bounds.right && b.bounds.left < a.bounds.right &&
           a.bounds.top < b.bounds.bottom && b.bounds.top < a.bounds.bottom && !parted(a, b) && !parted(b, a);
}

std::string quoted(const PageText& text)
{
    std::string words;
    for (const TextRun& run : text.runs)
        words += run.text;
    return "\xE2\x80\x9C" + words + "\xE2\x80\x9D";
}

/// How far a text stands out of the page, and where.
std::string outside(const Page& page, const Frame& frame)
{
    const std::pair<double, const char*> edges[] = {{-frame.bounds.left, "left"},
                                                    {frame.bounds.right - page.width, "right"},
                                                    {-frame.bounds.top, "upper"},
                                                    {frame.bounds.bottom - page.height, "lower"}};
    for (const auto& [distance, edge] : edges)
        if (distance > 0.005)
            return labelText(std::ceil(distance * 10) / 10, 0.1) + " mm over the " + edge +
                   " edge of the page";
    return "";
}

} // namespace

void findFaults(Scene& scene)
{
    const Page& page = scene.page;
    std::vector<std::pair<Frame, const PageText*>> texts;
    for (const PageMark& mark : page.marks)
        if (mark.kind == PageMark::Kind::text && page.texts[mark.text].width > 0)
            texts.emplace_back(frameOf(page.texts[mark.text], page.points[mark.firstPoint]),
                               &page.texts[mark.text]);
    std::sort(texts.begin(), texts.end(),
              [](const auto& a, const auto& b) { return a.first.bounds.left < b.first.bounds.left; });
    auto& faults = scene.plan.faults;
    constexpr std::size_t enough = 3; // one is mostly the cause of the others
    for (std::size_t i = 0; i < texts.size() && faults.size() < enough; ++i) {
        const auto& [frame, text] = texts[i];
        if (const std::string where = outside(page, frame); !where.empty())
            faults.push_back(quoted(*text) + " runs " + where + ".");
        for (std::size_t j = i + 1; j < texts.size() && texts[j].first.bounds.left < frame.bounds.right; ++j)
            if (faults.size() < enough && overlap(frame, texts[j].first))
                faults.push_back(quoted(*text) + " and " + quoted(*texts[j].second) +
                                 " stand over one another.");
    }
}
