#include "diagram/diagram_mouse.h"

#include "core/action_log.h"
#include "core/number_text.h"
#include "core/sample_move.h"
#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Names the taxon whose column is painted at `x` of the picture; the last one goes on to its end.
std::string taxonAt(float x)
{
    const DiagramView view = diagramView();
    const float percent = x / view.zoom + view.scroll;
    int column = taxonSlots;
    while (column > 0 && frmDiagram.plot.ColumnLeft[column] > percent)
        --column;
    return column == 0 ? std::string() : sheet.TaxonRecord[sheet.KeyIndexOfRow[column]].Name;
}

/// Where the mouse finds the sample line: by depth on a whole tenth of a row.
float lineOfSample(int sample)
{
    const float row = rowOfSample(sample);
    return sheet.NamesNotNumeric ? row : 10 * std::nearbyint(row / 10);
}

int sampleNearest(float y)
{
    if (sheet.NamesNotNumeric)
        return std::clamp(static_cast<int>(std::nearbyint(y / 10)), 1, static_cast<int>(sheet.SampleCount));
    const std::vector<float> rows = diagramRows();
    int nearest = 1;
    float best = 99999.0F;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (const float distance = std::abs(rows[static_cast<std::size_t>(sample)] / 10 - y / 10);
            distance < best) {
            best = distance;
            nearest = sample;
        }
    return nearest;
}

void followMouse(float y)
{
    DiagramForm& f = frmDiagram;
    if (!f.LineDragging && !f.MovingSample)
        return;
    f.Slider1.value = sampleNearest(y);
    if (f.LineDragging && !sheet.NamesNotNumeric)
        f.DiagramSample = f.Slider1.value;
    if (f.MovingSample)
        sheet.MoveTo = f.Slider1.value;
    placePanel();
}

void endDrag()
{
    frmDiagram.LineDragging = frmDiagram.MovingSample = false;
    frmDiagram.pointer = DiagramPointer::arrow;
}

} // namespace

void TargetLine(float x, float y, DiagramPicture picture)
{
    constexpr Colour colour = RGB(255, 50, 0);
    DiagramForm& f = frmDiagram;
    if (f.pointer != DiagramPointer::arrow)
        return;
    const auto [left, top, width, height] = f.Picture1.scale;
    if (f.mnuVertical.checked) {
        if (picture == DiagramPicture::diagram) {
            const float inView = x - static_cast<float>(f.HScroll1.value);
            f.Picture1.lineInLayer(inView, top, inView, top + height, colour);
        } else {
            f.Picture2.lineInLayer(x, top, x, top + height, colour);
        }
    }
    if (f.mnuHorizontal.checked) {
        f.Picture1.lineInLayer(left, y, left + width, y, colour);
        f.Picture2.lineInLayer(left, y, left + width, y, colour);
    }
}

void pictureMouseMove(DiagramPicture picture, float x, float y)
{
    DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen)
        return;
    if (picture == DiagramPicture::diagram) {
        f.toolTip = f.mnuTaxaName.checked ? taxonAt(x) : std::string();
        x += static_cast<float>(f.HScroll1.value);
    }
    const float offLine = y - lineOfSample(f.Slider1.value);
    if (offLine * offLine < f.Picture1.scale.height * 10 / 50)
        f.pointer = DiagramPointer::sizeNS;
    else if (!f.LineDragging && !f.MovingSample) // the line that moves stays in sight
        f.pointer = DiagramPointer::arrow;
    followMouse(y);
    paintSampleLine();
    TargetLine(x, y, picture);
    showMove();
}

bool pictureMouseDown(DiagramPicture picture, float x, float y, bool right)
{
    DiagramForm& f = frmDiagram;
    paintSampleLine();
    TargetLine(x, y, picture);
    bool opens = false;
    const bool onLine = f.pointer == DiagramPointer::sizeNS;
    if (right && sheet.NamesNotNumeric && onLine) {
        f.MovingSample = true;
        sheet.MoveFrom = sheet.MoveTo = f.Slider1.value;
        paintSampleLine();
    } else if (right && !f.LineDragging) {
        f.pointer = DiagramPointer::arrow;
        opens = true;
    } else if (!right && onLine) {
        f.LineDragging = true;
    }
    showMove();
    f.sliderFocused = true;
    return opens;
}

void moveDiagramSample()
{
    MoveSample();
    logAction("(Move sample) " + sheet.SampleField(sheet.MoveTo, 2) + ": " + decimalText(sheet.MoveFrom) +
              " to " + decimalText(sheet.MoveTo));
}

void pictureMouseUp()
{
    DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen)
        return;
    if (f.MovingSample && sheet.MoveFrom != sheet.MoveTo)
        moveDiagramSample();
    endDrag();
    paintSampleLine();
    placePanel();
    f.DiagramSample = f.Slider1.value;
    showMove();
    f.sliderFocused = true;
}

void mouseOverControls()
{
    endDrag();
    if (frmDiagram.Check1.checked)
        placePanel();
}

void mouseOverSurface()
{
    mouseOverControls();
    paintSampleLine();
}

void showMove()
{
    frmDiagram.Text1.text = decimalText(sheet.MoveFrom);
    frmDiagram.Text2.text = decimalText(sheet.MoveTo);
}

void listDiagramSamples()
{
    std::vector<std::string> names;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        names.push_back(sheet.SampleField(sample, 2));
    ComboBox& list = frmDiagram.Combo2;
    if (names == list.items)
        return;
    list.items = std::move(names);
    ++list.itemsRevision;
}
