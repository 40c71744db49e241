#include "diagram/diagram_window.h"

#include "core/dispatch_key.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sample_names.h"
#include "core/sheet_state.h"
#include "diagram/coniss_window.h"
#include "diagram/diagram_layout.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_view.h"
#include "diagram/figures.h"
#include "platform/ports.h"
#include "sheet/basis.h"

#include <algorithm>
#include <cmath>

static const Form form("frmDiagram", sheet.DiagramOpen, closeDiagram, Form::Stands::beside);

namespace {

constexpr int designWidth = 9735; // twips
constexpr int designHeight = 7545;
constexpr int leastPicture = 500;

void showBasis()
{
    frmDiagram.mnuSub1.checked = frmMain.Option1[1].selected;
    frmDiagram.mnuSub2.checked = frmMain.Option1[2].selected;
    frmDiagram.mnuAll.checked = frmMain.Option1[0].selected;
}

/// A label's caption without its colon.
std::string nameOfTotal(int total)
{
    const std::string& caption = frmMain.Label2[total].caption;
    return caption.substr(0, std::max<std::size_t>(caption.size(), 1) - 1);
}

void paintAll()
{
    layOutDiagramWindow(); // a longer name needs a higher strip
    paintDiagram();
    paintTaxonNames();
    placePanel();
}

void takeDepths()
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        sheet.SampleField(sample, 0) = sheet.SampleField(sample, 2);
}

/// What the window takes from the sheet when it opens, and again when the sheet gets another sample.
void load()
{
    DiagramForm& f = frmDiagram;
    f.mnuSub1.caption = nameOfTotal(1);
    f.mnuSub2.caption = nameOfTotal(2);
    f.mnuAll.caption = nameOfTotal(0);
    showBasis();
    f.DiagramSample = sheet.CurrentSample;
    const Scale rows = rowScale(sheet.SampleCount, 500);
    f.DiagramScaleTop = rows.top;
    f.DiagramScaleHeight = rows.height;
    f.Picture1.scale = rows;
    takeDepths();
    f.Slider1 = {1, std::max<int>(2, sheet.SampleCount), f.DiagramSample};
    listDiagramSamples();
}

void stepTo(int sample)
{
    frmDiagram.DiagramSample = sample;
    Slider1_Change(sample);
    frmDiagram.sliderFocused = true;
}

} // namespace

void mnuDiagramStyle_Click(int style)
{
    TestSampleNames();
    frmDiagram.style = style;
    LaunchDiagram();
}

void LaunchDiagram()
{
    if (sheet.SampleCount <= 1)
        return;
    DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen) {
        f.Slider2.value = 5;
        load();
    }
    PrepareDiagram();
    f.HScroll1.value = 0;
    if (sheet.DiagramHeight == 0) {
        sheet.DiagramHeight = designHeight;
        sheet.DiagramWidth = std::max(sheet.DiagramWidth, designWidth);
    }
    sheet.DiagramOpen = true;
    ++f.forwardRevision;
    frmDiagram_Resize(sheet.DiagramWidth, sheet.DiagramHeight);
}

void closeDiagram()
{
    DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen)
        return;
    dismissDendrogram(); // the window comes back without it and without its width
    sheet.DiagramOpen = false;
    f.ConissShown = false;
    f.LineDragging = f.MovingSample = false;
    f.pointer = DiagramPointer::arrow;
    if (!sheet.Unloading)
        frmMain.focus = MainFocus::Text99;
}

void reloadDiagram()
{
    if (!sheet.DiagramOpen)
        return;
    load();
    dismissDendrogram();
    PrepareDiagram();
    paintAll();
}

void reorderDiagram()
{
    if (!sheet.DiagramOpen)
        return;
    listDiagramSamples();
    PrepareDiagram();
    paintDiagram();
    paintTaxonNames();
    recomputeDendrogram();
}

void refreshDiagram()
{
    if (!sheet.DiagramOpen)
        return;
    PrepareDiagram();
    dismissDendrogram();
    paintAll();
}

void redrawDiagram()
{
    if (!sheet.DiagramOpen)
        return;
    showBasis();
    PrepareDiagram();
    paintAll();
    recomputeDendrogram();
}

void followSampleNames()
{
    const bool before = sheet.NamesNotNumeric;
    TestSampleNames();
    if (!sheet.DiagramOpen)
        return;
    DiagramForm& f = frmDiagram;
    const bool visited = sheet.Edited == EditedBox::Text1 && sheet.EditedIndex == 0;
    if (sheet.NamesNotNumeric != before)
        f.followedName = visited ? std::optional(sheet.EditOld) : std::nullopt;
    else if (!visited || f.followedName != sheet.EditOld)
        return;
    takeDepths();
    listDiagramSamples();
    redrawDiagram();
}

void frmDiagram_Resize(int width, int height)
{
    DiagramForm& f = frmDiagram;
    f.Width = width;
    f.Height = height;
    f.ScaleWidth = f.Width - f.chromeWidth;
    f.ScaleHeight = f.Height - f.chromeHeight;
    if (f.ResizeHold || !sheet.DiagramOpen)
        return;
    layOutDiagramWindow();
    const bool narrow = f.picture1Place.width < leastPicture;
    const bool low = f.picture1Place.height < leastPicture;
    if (narrow || low) {
        if (narrow)
            f.Width = 5000 + (f.picture2Visible ? dendrogramWidth : 0);
        if (low)
            f.Height = 3500;
        f.ScaleWidth = f.Width - f.chromeWidth;
        f.ScaleHeight = f.Height - f.chromeHeight;
        ports.dialogs->ask("Frame too small", "Error", Buttons::ok, Icon::exclamation);
        layOutDiagramWindow();
    }
    // On purpose without the zoom, and without a limit.
    const float beyond = f.plot.ColumnLeft[taxonSlots] - f.Picture1.scale.width + f.plot.LastColumnWidth +
                         2.0F * static_cast<float>(f.plot.ColumnGap);
    constexpr float farthest = 2e9F; // a mistyped count may make a column wider than a whole number can say
    f.HScroll1.max = static_cast<int>(std::nearbyint(std::clamp(beyond, 0.0F, farthest)));
    f.HScroll1.value = std::min(f.HScroll1.value, f.HScroll1.max);
    f.HScroll1.largeChange = static_cast<int>(f.Picture1.scale.width);
    f.HScroll1.smallChange = 10;
    f.HScroll1.visible = f.HScroll1.max > 0;
    paintDiagram();
    paintTaxonNames();
    placePanel();
    if (f.ConissShown && f.picture2Visible)
        drawDendrogram();
    sheet.DiagramHeight = f.Height;
    sheet.DiagramWidth = f.Width;
}

void frmDiagram_KeyDown(int keyCode, int shift)
{
    const int before = wholeNumber(frmMain.Text3[0].text);
    DispatchKey(keyCode, shift);
    if (wholeNumber(frmMain.Text3[0].text) > before)
        ++frmMain.forwardRevision;
}

void frmDiagram_KeyUp(int keyCode)
{
    if ((keyCode == sheet.Shift1Key || keyCode == sheet.Shift2Key) && sheet.Layer > 0)
        --sheet.Layer;
    if (keyCode == sheet.Shift1Key)
        sheet.Shift1Down = false;
    if (keyCode == sheet.Shift2Key)
        sheet.Shift2Down = false;
    if (!sheet.Modifying && sheet.Layer < 2)
        frmMain.SSTab1 = sheet.Layer;
    if (keyCode == sheet.MinusKey)
        sheet.MinusState = 0;
}

void frmDiagram_Style_Click(int style)
{
    frmDiagram.style = style;
    paintDiagram();
}

void frmDiagram_Basis_Click(int basis)
{
    if (frmMain.Option1[basis].selected)
        redrawDiagram();
    else
        selectBasis(basis);
    sheet.AlarmArmed = true;
}

void mnuDefaultDGColour_Click()
{
    sheet.DiagramColour = RGB(0, 128, 0);
    paintDiagram();
}

void mnuCustomDGColour_Click()
{
    if (const auto colour = ports.dialogs->chooseColour(sheet.DiagramColour))
        sheet.DiagramColour = *colour;
    paintDiagram();
}

void mnuVertical_Click()
{
    frmDiagram.mnuVertical.checked = !frmDiagram.mnuVertical.checked;
    paintSampleLine();
}

void mnuHorizontal_Click()
{
    frmDiagram.mnuHorizontal.checked = !frmDiagram.mnuHorizontal.checked;
    paintSampleLine();
}

void mnuTaxaName_Click()
{
    frmDiagram.mnuTaxaName.checked = !frmDiagram.mnuTaxaName.checked;
}

void mnuCopyDiagram_Click()
{
    ports.pictures->copy(figureInView(DiagramPart::diagram));
}

void mnuCopyTaxaName_Click()
{
    ports.pictures->copy(figureInView(DiagramPart::names));
}

void mnuECC_Click()
{
}

void mnuCopyEOF_Click()
{
}

void mnuSaveEOF_Click()
{
}

void mnuSaveAllEOF_Click()
{
}

void SaveEOF()
{
}

void SaveAllEOF()
{
}

void Slider1_Change(int sample)
{
    frmDiagram.Slider1.value = std::clamp<int>(sample, 1, sheet.SampleCount);
    paintSampleLine();
    placePanel();
    frmMain.SSTab1 = 0;
}

void Slider1_Click()
{
    paintSampleLine();
    placePanel();
}

void Slider2_Change(int zoom)
{
    frmDiagram.Slider2.value = std::clamp(zoom, 1, 10);
    PrepareDiagram();
    paintAll();
    frmDiagram.sliderFocused = true;
}

void HScroll1_Change(int percent)
{
    frmDiagram.HScroll1.value = std::clamp(percent, 0, frmDiagram.HScroll1.max);
    paintTaxonNames();
    paintDiagram();
    frmDiagram.sliderFocused = true;
}

void UpDown1_UpClick()
{
    const int sample = frmDiagram.DiagramSample;
    stepTo(sample <= 1 ? sheet.SampleCount : sample - 1);
}

void UpDown1_DownClick()
{
    const int sample = frmDiagram.DiagramSample;
    stepTo(sample >= sheet.SampleCount ? 1 : sample + 1);
}

void frmDiagram_Combo2_Click(std::string_view name)
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 2) == name)
            frmDiagram.DiagramSample = sample;
    stepTo(frmDiagram.DiagramSample);
}

void Check1_Click()
{
    frmDiagram.Check1.checked = !frmDiagram.Check1.checked;
    paintSampleLine();
    frmDiagram.sliderFocused = true;
}

void frmDiagram_Command1_Click()
{
    frmDiagram.Text1.enabled = frmDiagram.Text2.enabled = true;
    showMove();
}

void frmDiagram_Activate()
{
    listDiagramSamples(); // one may have been renamed meanwhile, and is picked by the name that it has now
    placePanel();
    frmDiagram.sliderFocused = true;
}
