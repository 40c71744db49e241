#include "trials/days/session.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "diagram/coniss_window.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_view.h"
#include "diagram/diagram_window.h"
#include "diagram/figures.h"

namespace {

bool isOpen()
{
    return sheet.DiagramOpen;
}

DayEvent entry(const char* name, int weight, void (*handler)())
{
    return {name, weight, Effect::none, isOpen, [handler](Session& s) { s.fromMenu(handler); }};
}

DayEvent dendrogramEntry(const char* name, void (*handler)())
{
    return {name, 1, Effect::none, [] { return isOpen() && frmDiagram.picture2Visible; },
            [handler](Session& s) { s.fromMenu(handler); }};
}

DayEvent control(const char* name, int weight, std::function<void(Session&)> happen)
{
    return {name, weight, Effect::none, isOpen, std::move(happen)};
}

/// A place in one of the pictures, often on the sample line.
struct Spot {
    DiagramPicture picture;
    float x, y;
};

Spot anySpot(Session& s)
{
    const DiagramForm& f = frmDiagram;
    const DiagramPicture picture =
        f.picture2Visible && s.chance.oneIn(3) ? DiagramPicture::dendrogram : DiagramPicture::diagram;
    const Scale& scale = picture == DiagramPicture::diagram ? f.Picture1.scale : f.Picture2.scale;
    const float y =
        s.chance.oneIn(2) ? rowOfSample(f.Slider1.value) : scale.top + scale.height * s.chance.fraction();
    return {picture, scale.left + scale.width * s.chance.fraction(), y};
}

void moveMouse(Session& s)
{
    const Spot spot = anySpot(s);
    s.event([&] { pictureMouseMove(spot.picture, spot.x, spot.y); });
}

void pressMouse(Session& s)
{
    const Spot spot = anySpot(s);
    s.event([&, right = s.chance.oneIn(2)] { pictureMouseDown(spot.picture, spot.x, spot.y, right); });
}

} // namespace

std::vector<DayEvent> eventsOfDiagram()
{
    return {
        entry("mnuSub1 of the diagram", 2, [] { frmDiagram_Basis_Click(1); }),
        entry("mnuSub2 of the diagram", 2, [] { frmDiagram_Basis_Click(2); }),
        entry("mnuAll of the diagram", 2, [] { frmDiagram_Basis_Click(0); }),
        entry("style bar", 1, [] { frmDiagram_Style_Click(0); }),
        entry("style dot and curve", 1, [] { frmDiagram_Style_Click(4); }),
        entry("mnuDefaultDGColour", 1, mnuDefaultDGColour_Click),
        entry("mnuCustomDGColour", 1, mnuCustomDGColour_Click),
        entry("mnuVertical", 2, mnuVertical_Click),
        entry("mnuHorizontal", 2, mnuHorizontal_Click),
        entry("mnuTaxaName", 2, mnuTaxaName_Click),
        entry("nmuConiss", 10, nmuConiss_Click),
        entry("mnuCopyDiagram", 1, mnuCopyDiagram_Click),
        entry("mnuCopyTaxaName", 1, mnuCopyTaxaName_Click),
        entry("mnuSavePicture", 1, mnuSavePicture_Click),
        dendrogramEntry("mnuCopyConiss", mnuCopyConiss_Click),
        dendrogramEntry("mnuSaveConiss", mnuSaveConiss_Click),
        control("Slider1", 8,
                [](Session& s) {
                    s.event([to = s.chance.between(1, frmDiagram.Slider1.max)] { Slider1_Change(to); });
                    s.event(Slider1_Click);
                }),
        control("Slider2", 5,
                [](Session& s) { s.event([to = s.chance.between(0, 10)] { Slider2_Change(to); }); }),
        control("HScroll1", 5,
                [](Session& s) {
                    s.event([to = s.chance.between(0, frmDiagram.HScroll1.max)] { HScroll1_Change(to); });
                }),
        control("UpDown1", 6,
                [](Session& s) { s.event(s.chance.oneIn(2) ? UpDown1_UpClick : UpDown1_DownClick); }),
        control("Combo2 of the diagram", 4,
                [](Session& s) {
                    s.event(
                        [name = s.chance.oneOf(frmDiagram.Combo2.items)] { frmDiagram_Combo2_Click(name); });
                }),
        control("Check1 of the diagram", 3, [](Session& s) { s.event(Check1_Click); }),
        control("Command1 of the diagram", 1, [](Session& s) { s.event(frmDiagram_Command1_Click); }),
        control("diagram in front", 3, [](Session& s) { s.event(frmDiagram_Activate); }),
        control("size of the diagram", 5,
                [](Session& s) {
                    frmDiagram.chromeHeight = 900;
                    s.event([width = s.chance.between(3300, 20000), height = s.chance.between(2400, 15000)] {
                        frmDiagram_Resize(width, height);
                    });
                }),
        control("mouse moves over the diagram", 30, moveMouse),
        control("mouse pressed in the diagram", 15, pressMouse),
        control("mouse over controls", 3,
                [](Session& s) { s.event(s.chance.oneIn(2) ? mouseOverControls : mouseOverSurface); }),
        control("diagram closed", 4, [](Session& s) { s.event(closeDiagram); }),
        {"mouse let go in the diagram", 25, Effect::edited, isOpen,
         [](Session& s) { s.event(pictureMouseUp); }},
    };
}
