#include "diagram/diagram_view.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sample_names.h"
#include "core/sample_sort.h"
#include "core/sheet_state.h"
#include "diagram/diagram_form.h"
#include "sheet/basis.h"

#include <algorithm>
#include <cmath>

namespace {

float zoom()
{
    return static_cast<float>(frmDiagram.Slider2.value) / 5.0F;
}

void setScrollRange()
{
    const PlotData& plot = frmDiagram.plot;
    const double inView = 5.0 / frmDiagram.Slider2.value * frmDiagram.Picture1.scale.width;
    const double beyond = plot.ColumnLeft[taxonSlots] - inView + plot.LastColumnWidth + 2 * plot.ColumnGap;
    frmDiagram.HScroll1.smallChange = 10;
    frmDiagram.HScroll1.largeChange = std::max(1, static_cast<int>(std::nearbyint(inView)));
    frmDiagram.HScroll1.max = static_cast<int>(std::nearbyint(std::clamp(beyond, 0.0, 32767.0)));
    frmDiagram.HScroll1.value = std::min(frmDiagram.HScroll1.value, frmDiagram.HScroll1.max);
}

/// Depths that do not ascend put the shares of one sample at the row of another.
bool outOfDepthOrder()
{
    if (sheet.NamesNotNumeric)
        return false;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (frmDiagram.plot.DepthRank[sample] != sample)
            return true;
    return false;
}

} // namespace

void PrepareDiagram()
{
    PlotData& plot = frmDiagram.plot;
    plot.ColumnGap = columnGap(frmDiagram.Slider2.value);
    TestSampleNames();
    rankSamples(plot, sheet, !sheet.NamesNotNumeric);
    fillShares(plot, sheet, basisWeights());
    layOutColumns(plot, sheet);
    setScrollRange();
    const bool unordered = outOfDepthOrder();
    sampleSort.offer.visible = unordered;
    frmDiagram.notice =
        unordered ? "Not in depth order: a row and its percentages may be of different samples." : "";
}

DiagramView diagramView()
{
    return {diagramStyles[frmDiagram.style].paintColumn, sheet.DiagramColour, zoom(),
            static_cast<float>(frmDiagram.HScroll1.value), frmDiagram.Picture1.scale};
}

std::vector<float> diagramRows()
{
    return rowPositions(sheet, sheet.NamesNotNumeric);
}

float rowOfSample(int sample)
{
    return diagramRows()[static_cast<std::size_t>(std::clamp<int>(sample, 1, sheet.SampleCount))];
}

void paintDiagram()
{
    if (sheet.SampleCount == 1 || !sheet.DiagramOpen)
        return;
    TestSampleNames();
    frmDiagram.Picture1.setPicture(planDiagram(frmDiagram.plot, diagramRows(), diagramView()));
    paintSampleLine();
}

void paintTaxonNames()
{
    if (!sheet.DiagramOpen)
        return;
    // In twips times the pixels to a twip, less a margin of eight pixels.
    const auto origin = static_cast<float>(static_cast<int>(frmDiagram.picture4Place.height * 0.0667 - 8.0));
    frmDiagram.Picture4.setPicture(planNames(frmDiagram.plot, diagramView(), origin));
}

void paintSampleLine()
{
    if (!sheet.DiagramOpen)
        return;
    DiagramForm& f = frmDiagram;
    f.Picture1.clearLayer();
    f.Picture2.clearLayer();
    if (!f.Check1.checked && f.pointer != DiagramPointer::sizeNS)
        return;
    const Colour colour = f.MovingSample ? RGB(255, 0, 0) : RGB(0, 0, 255);
    const float row = rowOfSample(f.Slider1.value);
    f.Picture1.lineInLayer(0, row, f.Picture1.scale.width, row, colour);
    if (f.picture2Visible) // drawn as long as the other; what lies beyond the picture is not seen
        f.Picture2.lineInLayer(0, row, f.Picture1.scale.width, row, colour);
}

void placePanel()
{
    if (!sheet.DiagramOpen)
        return;
    DiagramForm& f = frmDiagram;
    f.PanelSample = f.Slider1.value;
    const double inPicture = static_cast<double>(rowOfSample(f.PanelSample) - f.Picture1.scale.top) *
                             (f.picture1Place.height - 60.0) / f.Picture1.scale.height;
    constexpr double farOff = 1e6; // twips: a single depth may lie beyond any screen, and any whole number
    const double panelTop = std::clamp(std::nearbyint(inPicture - 90.0), -farOff, farOff);
    f.Check1.caption = sheet.SampleField(f.PanelSample, 0);
    f.Combo2.text = sheet.SampleField(f.PanelSample, 2);
    f.frame3Place.top = f.picture1Place.top + static_cast<int>(panelTop) - 300;
    f.upDown1Place.top = f.frame3Place.top + 240;
}
