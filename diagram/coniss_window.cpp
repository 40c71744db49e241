#include "diagram/coniss_window.h"

#include "core/cue.h"
#include "core/fields.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "diagram/dendrogram.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_layout.h"
#include "diagram/diagram_view.h"
#include "diagram/figures.h"
#include "platform/ports.h"
#include "sheet/basis.h"

namespace {

void runAnalysis()
{
    const auto weights = basisWeights();
    Profiles profiles(static_cast<std::size_t>(sheet.SampleCount) + 1, std::vector<float>(taxonSlots));
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int rank = 1; rank <= sheet.SampleCount; ++rank)
            profiles[rank][slot - 1] =
                static_cast<float>(weights[slot]) * frmDiagram.plot.Share(rank, sheet.RowOfKeyIndex[slot]);
    frmDiagram.merges = clusterSamples(std::move(profiles), diagramRows());
}

/// Shows or hides Picture2, and makes the window wider or narrower by it.
void showBeside(bool visible)
{
    DiagramForm& f = frmDiagram;
    if (f.picture2Visible == visible)
        return;
    f.ResizeHold = true;
    f.picture2Visible = visible;
    const int wider = visible ? dendrogramWidth : -dendrogramWidth;
    f.Width += wider;
    f.ScaleWidth += wider;
    sheet.DiagramWidth = f.Width;
    layOutDiagramWindow();
    f.ResizeHold = false;
}

std::string matrixText(const MergeTable& merges)
{
    FieldWriter fields;
    fields.text("Depth from").text("Depth to").text("Sum square").endLine();
    for (int merge = merges.merges(); merge >= 1; --merge) {
        for (const float number :
             {merges.MergeFrom[merge], merges.MergeTo[merge], merges.MergeSumSquare[merge]})
            fields.decimal(number);
        fields.endLine();
    }
    return fields.take();
}

} // namespace

void nmuConiss_Click()
{
    DiagramForm& f = frmDiagram;
    f.nmuConiss.checked = !f.nmuConiss.checked;
    showBeside(f.nmuConiss.checked);
    if (f.nmuConiss.checked) {
        runAnalysis();
        drawDendrogram();
        f.ConissShown = true;
    }
    placePanel();
}

void dismissDendrogram()
{
    frmDiagram.nmuConiss.checked = false;
    showBeside(false);
}

void recomputeDendrogram()
{
    if (!frmDiagram.picture2Visible)
        return;
    runAnalysis();
    drawDendrogram();
}

void drawDendrogram()
{
    Surface& picture = frmDiagram.Picture2;
    picture.scale = dendrogramScale(frmDiagram.merges, frmDiagram.Picture1.scale);
    picture.setPicture(
        planDendrogram(frmDiagram.merges, picture.scale, picture.width * picture.devicePixels));
    paintSampleLine();
}

void mnuCopyConiss_Click()
{
    ports.pictures->copy(figureInView(DiagramPart::dendrogram));
}

void mnuSaveConiss_Click()
{
    const auto path = ports.dialogs->chooseFileToSave("Save cluster matrix", "");
    if (!path)
        return;
    if (!ports.files->write(*path, matrixText(frmDiagram.merges))) {
        tellFileInUse();
        return;
    }
    playCue(Cue::SoundSave);
}
