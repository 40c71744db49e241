#include "diagram/diagram_hand.h"

#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_view.h"
#include "diagram/diagram_window.h"

#include <algorithm>

DiagramHand diagramHand;

constexpr int notch = 120;

void mnuDiagramFile_Open()
{
    diagramHand.mnuSaveConiss.enabled = frmDiagram.picture2Visible;
}

void pickSample(int step)
{
    if (!sheet.DiagramOpen)
        return;
    Slider1_Change(frmDiagram.Slider1.value + step);
    frmDiagram.DiagramSample = frmDiagram.Slider1.value;
}

void carryPickedSample(int step)
{
    const int from = frmDiagram.Slider1.value;
    const int to = std::clamp<int>(from + step, 1, sheet.SampleCount);
    if (!sheet.DiagramOpen || !sheet.NamesNotNumeric || frmDiagram.MovingSample || to == from)
        return;
    sheet.MoveFrom = from;
    sheet.MoveTo = to;
    frmDiagram.Slider1.value = frmDiagram.DiagramSample = to;
    moveDiagramSample();
    paintSampleLine();
    placePanel();
    showMove();
}

void turnWheel(int angle, bool zooms)
{
    if (!sheet.DiagramOpen)
        return;
    if (!zooms) {
        constexpr int percentsOfNotch = 30;
        HScroll1_Change(frmDiagram.HScroll1.value - angle * percentsOfNotch / notch);
        return;
    }
    diagramHand.turned += angle;
    const int steps = diagramHand.turned / notch;
    diagramHand.turned %= notch;
    if (steps != 0)
        Slider2_Change(frmDiagram.Slider2.value + steps);
}
