#include "diagram/dendrogram.h"

namespace {

constexpr Colour black = RGB(0, 0, 0);
constexpr Colour white = RGB(255, 255, 255);

void drawTicks(Drawing& drawing, float highest, const Scale& scale, float pixelWidth)
{
    const auto [left, top, width, height] = scale;
    const bool apart = pixelWidth >= width; // a pixel or more to each unit
    int x = 1;
    do {
        const auto at = static_cast<float>(x);
        drawing.line(at, top, at, top + height * 8 / 1000, black);
        drawing.line(at, top + height, at, top + height * 988 / 1000, black);
        ++x;
    } while (apart && static_cast<float>(x) < highest * 1.2F);
}

} // namespace

Scale dendrogramScale(const MergeTable& merges, const Scale& diagram)
{
    const float width = merges.MergeSumSquare[merges.merges()] * 1.1F;
    return {0, diagram.top, width > 0 ? width : 1, diagram.height};
}

Drawing planDendrogram(const MergeTable& merges, const Scale& scale, float pixelWidth)
{
    Drawing drawing;
    const int last = merges.merges();
    const auto [left, top, width, height] = scale;
    drawing.box(left, top, left + width, top + height, white);
    const float root = (merges.MergeFrom[last] + merges.MergeTo[last]) / 2;
    drawing.line(0, root, merges.MergeSumSquare[last] * 1.1F, root, black);
    for (int merge = last; merge >= 1; --merge) {
        const float from = merges.MergeFrom[merge];
        const float to = merges.MergeTo[merge];
        const float sum = merges.MergeSumSquare[merge];
        drawing.box(0, from, sum, to, white);
        drawing.line(0, from, sum, from, black);
        drawing.line(sum, from, sum, to, black);
        drawing.line(0, to, sum, to, black);
    }
    drawTicks(drawing, merges.MergeSumSquare[last], scale, pixelWidth);
    return drawing;
}
