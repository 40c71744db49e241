#include "diagram/diagram_layout.h"

#include "core/sheet_size.h"
#include "diagram/diagram_form.h"
#include "diagram/paint_diagram.h"
#include "platform/ports.h"
#include "platform/twips.h"

#include <algorithm>
#include <cmath>

namespace {

// Twips. What the window keeps free around the diagram; the margins are measured from its lower right corner.
constexpr int pictureLeft = 720;
constexpr int MarginWidth = 2310; ///< window less diagram, both widths
constexpr int MarginFrame = 1530; ///< window less left edge of the panel
constexpr int MarginStrip = 75;   ///< window less top of the strip below the scroll bar
constexpr int MarginScroll = 345; ///< window less top of the scroll bar
constexpr int scrollBarHeight = 255;
constexpr int noticeHeight = 300;
constexpr int panelHeight = 780;
constexpr int overhang = 210; ///< by which the last column's name may pass the diagram's edge

/// As high as the longest name needs, but a third of the room is the diagram's; a name beyond that is cut.
int namesHeight(int room)
{
    constexpr int leastDiagram = 600;
    constexpr int leastStrip = 900;
    const int needed = static_cast<int>(std::ceil(longestName())) * twipsPerPixel + 240;
    return std::max(leastStrip, std::min({std::max(needed, 1900), room * 2 / 3, room - leastDiagram}));
}

void setSize(Surface& surface, const Place& place)
{
    surface.width = static_cast<float>(place.width) / twipsPerPixel;
    surface.height = static_cast<float>(place.height) / twipsPerPixel;
}

} // namespace

float longestName()
{
    float longest = 0;
    for (int column = 1; column <= taxonSlots; ++column)
        longest = std::max(longest,
                           ports.pictures->textWidth(nameLetters(frmDiagram.plot.ColumnName[column], true)));
    return longest;
}

void layOutDiagramWindow()
{
    DiagramForm& f = frmDiagram;
    const int above = f.notice.empty() ? 0 : noticeHeight;
    const int below = MarginScroll + 30;
    const int names = namesHeight(f.ScaleHeight - above - below);
    const int MarginHeight = above + names + below;
    const int MarginSlider = MarginHeight;
    const int besideDiagram = f.picture2Visible ? dendrogramWidth : 0;

    const int width = std::max(twipsPerPixel, f.ScaleWidth - MarginWidth - besideDiagram);
    const int height = std::max(twipsPerPixel, f.ScaleHeight - MarginHeight);
    const int top = above + names;
    f.picture4Place = {pictureLeft, above, width + overhang, names};
    f.picture1Place = {pictureLeft, top, width, height};
    f.picture2Place = {pictureLeft + width, top, dendrogramWidth, height};
    f.hScroll1Place = {pictureLeft, f.ScaleHeight - MarginScroll, width, scrollBarHeight};
    f.picture3Place = {0, f.ScaleHeight - MarginStrip, f.ScaleWidth, MarginStrip};
    f.slider1Place = {90, top, 330, f.ScaleHeight - MarginSlider};
    f.frame3Place = {f.ScaleWidth - MarginFrame, f.frame3Place.top, MarginFrame - 90, panelHeight};
    f.upDown1Place = {pictureLeft - 240, f.frame3Place.top + 240, 240, 300};
    constexpr int panelRises = 420; // above the diagram, at the first sample
    f.cornerPlace = {f.frame3Place.left, above + 30, f.frame3Place.width, names - 30 - panelRises};

    setSize(f.Picture1, f.picture1Place);
    setSize(f.Picture2, f.picture2Place);
    setSize(f.Picture4, f.picture4Place);
    f.Picture1.scale = {0, f.DiagramScaleTop, f.Picture1.width / pixelsPerUnit, f.DiagramScaleHeight};
    f.Picture4.scale = {0, 0, f.Picture4.width, f.Picture4.height};
}
